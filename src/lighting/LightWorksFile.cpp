#include "LightWorksFile.h"

#include "LightingLog.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

constexpr qint64 LargestFile = 2ll * 1024 * 1024 * 1024; ///< bytes: a work takes up to 50,000
constexpr qsizetype Frame = 80;                          ///< bytes of a work besides its texts, at most

const QString ImageKey = QStringLiteral("image");
const QString NameKey = QStringLiteral("name");
const QString DataKey = QStringLiteral("data");

void appendQuoted(QByteArray &json, const QString &text)
{
    const QByteArray array = QJsonDocument(QJsonArray{text}).toJson(QJsonDocument::Compact);
    json.append(array.constData() + 1, array.size() - 2);
}

/// Whether nothing in a text needs escaping. Without a way out of the loop the compiler checks many bytes at
/// once.
bool isPlain(const QByteArray &utf8)
{
    unsigned odd = 0;
    for (const char c : utf8)
        odd |= unsigned(c < 0x20) | unsigned(c == '"') | unsigned(c == '\\') | unsigned(c == 0x7F);
    return odd == 0;
}

/// Pictures are long, and as long as they are what they should be, they go in as they stand.
void appendQuoted(QByteArray &json, const QByteArray &utf8)
{
    if (isPlain(utf8))
        json.append('"').append(utf8).append('"');
    else
        appendQuoted(json, QString::fromUtf8(utf8));
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
    for (const auto &value : array) {
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
        json += "\n        \"data\": ";
        appendQuoted(json, work.data);
        json += ",\n        \"image\": ";
        appendQuoted(json, work.image);
        json += ",\n        \"name\": ";
        appendQuoted(json, work.name);
        json += "\n    }";
    }
    json += "\n]\n";
    return json;
}
