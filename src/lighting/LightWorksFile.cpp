#include "LightWorksFile.h"

#include "LightingLog.h"

#include <algorithm>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr qint64 LargestFile = 1024 * 1024 * 1024; ///< bytes: a work takes about 100,000
constexpr qsizetype Frame = 80;                    ///< bytes of a work besides its texts, at most

const QString ImageKey = QStringLiteral("image");
const QString NameKey = QStringLiteral("name");
const QString DataKey = QStringLiteral("data");

/// A text in quotation marks, escaped as JSON has it.
QByteArray quoted(const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    return array.sliced(1, array.size() - 2);
}

/// Pictures are long, and as long as they are what they should be, nothing in them needs escaping.
QByteArray quoted(const QByteArray &utf8)
{
    const auto plain = [](char c) { return c >= 0x20 && c < 0x7F && c != '"' && c != '\\'; };
    return std::ranges::all_of(utf8, plain) ? '"' + utf8 + '"' : quoted(QString::fromUtf8(utf8));
}

} // namespace

LightWorksFile::LightWorksFile(const QString &folder)
    : file(folder + QStringLiteral("/ledwork.json"), LargestFile)
{
}

QList<LightWork> LightWorksFile::load()
{
    const std::optional<QByteArray> content = file.read();
    if (!content)
        return {};
    const QJsonDocument document = QJsonDocument::fromJson(*content);
    bool understood = document.isArray();
    const QJsonArray array = document.array();
    QList<LightWork> works;
    works.reserve(array.size());
    for (const QJsonValue &value : array) {
        const QJsonObject object = value.toObject();
        const QJsonValue image = object[ImageKey];
        const QJsonValue name = object[NameKey];
        const QJsonValue data = object[DataKey];
        understood = understood && image.isString() && name.isString() && data.isString();
        if (value.isObject())
            works.append({image.toString().toUtf8(), name.toString(), data.toString().toUtf8()});
    }
    if (!understood) {
        qCWarning(lcLighting).noquote()
            << file.path() << "holds more than the" << works.size() << "works that were understood";
        file.setAside();
    }
    return works;
}

bool LightWorksFile::save(const QList<LightWork> &works)
{
    return file.write(toJson(works));
}

// What QJsonDocument would write, without a copy of every picture on the way: with a hundred works that is
// most of the time that the user waits for.
QByteArray LightWorksFile::toJson(const QList<LightWork> &works)
{
    qsizetype length = 0;
    for (const LightWork &work : works)
        length += work.image.size() + work.name.size() + work.data.size() + Frame;
    QByteArray json;
    json.reserve(length);
    json += "[";
    for (const LightWork &work : works) {
        json += json.size() > 1 ? ",\n    {" : "\n    {";
        json += "\n        \"data\": " + quoted(work.data);
        json += ",\n        \"image\": " + quoted(work.image);
        json += ",\n        \"name\": " + quoted(work.name) + "\n    }";
    }
    json += "\n]\n";
    return json;
}
