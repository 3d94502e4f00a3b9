#include "MacroJson.h"

#include "ModuleMacroManager.h"

#include <optional>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>

namespace macrojson {

namespace {

const QString VersionKey = QStringLiteral("version");
const QString CountKey = QStringLiteral("count");
const QString MacrosKey = QStringLiteral("macro");
const QString IdKey = QStringLiteral("id");
const QString ModeKey = QStringLiteral("mode");
const QString NameKey = QStringLiteral("name");
const QString RepeatKey = QStringLiteral("repeat");
const QString EventsKey = QStringLiteral("data");
const QString TypeKey = QStringLiteral("type");
const QString ValueKey = QStringLiteral("value");
const QString DownKey = QStringLiteral("down");
const QString TextKey = QStringLiteral("text");

constexpr int LargestByte = 0xFF;
constexpr int LargestValue = 0xFFFF;

/// A whole number from 0 to \a largest.
std::optional<int> number(const QJsonObject &object, const QString &key, int largest)
{
    const int value = object.value(key).toInt(-1);
    return value >= 0 && value <= largest ? std::optional(value) : std::nullopt;
}

std::optional<QJsonArray> arrayIn(const QByteArray &content, const QString &key)
{
    const QJsonValue value = QJsonDocument::fromJson(content).object().value(key);
    return value.isArray() ? std::optional(value.toArray()) : std::nullopt;
}

/// Null for an entry without a usable id. What else is wrong with it gets its default.
std::unique_ptr<Macro> macroIn(const QJsonObject &object, bool &isComplete)
{
    const auto id = number(object, IdKey, ModuleMacroManager::MostMacros - 1);
    if (!id)
        return nullptr;
    auto macro = std::make_unique<Macro>();
    const auto mode = number(object, ModeKey, LargestByte);
    const auto repeat = number(object, RepeatKey, LargestByte);
    const QJsonValue name = object.value(NameKey);
    macro->id = quint8(*id);
    macro->mode = quint8(mode.value_or(macro->mode));
    macro->repeat = quint8(repeat.value_or(macro->repeat));
    macro->name = ModuleMacroManager::plainName(name.toString());
    isComplete = isComplete && mode && repeat && name.toString() == macro->name && name.isString();
    return macro;
}

std::unique_ptr<MacroEvent> eventIn(const QJsonObject &object)
{
    const auto type = number(object, TypeKey, MacroType::Delay);
    const auto value = number(object, ValueKey, LargestValue);
    const QJsonValue down = object.value(DownKey);
    if (!type || !value || !down.isBool())
        return nullptr;
    auto event = std::make_unique<MacroEvent>();
    event->type = quint8(*type);
    event->value = quint16(*value);
    event->down = down.toBool();
    event->text = singleLine(object.value(TextKey).toString(), ModuleMacroManager::LongestText);
    return event;
}

QJsonObject objectOf(const Macro &macro)
{
    return {{IdKey, macro.id}, {ModeKey, macro.mode}, {NameKey, macro.name}, {RepeatKey, macro.repeat}};
}

QJsonObject objectOf(const MacroEvent &event)
{
    return {{TypeKey, event.type}, {ValueKey, event.value}, {DownKey, event.down}, {TextKey, event.text}};
}

} // namespace

QByteArray writeHeader(const QList<Macro *> &macros)
{
    QJsonArray array;
    for (const Macro *macro : macros)
        array.append(objectOf(*macro));
    const QJsonObject root{
        {VersionKey, QStringLiteral("20260109")}, {CountKey, macros.size()}, {MacrosKey, array}};
    return QJsonDocument(root).toJson();
}

Header readHeader(const QByteArray &content)
{
    Header header;
    const auto array = arrayIn(content, MacrosKey);
    if (!array) {
        header.isComplete = false;
        return header;
    }
    QSet<quint8> ids;
    for (const auto &entry : *array) {
        auto macro = macroIn(entry.toObject(), header.isComplete);
        if (!macro || ids.contains(macro->id)) {
            header.isComplete = false;
            continue;
        }
        ids.insert(macro->id);
        header.macros.push_back(std::move(macro));
    }
    return header;
}

QByteArray writeEvents(const Macro &macro)
{
    QJsonArray array;
    for (const MacroEvent *event : macro.events)
        array.append(objectOf(*event));
    return QJsonDocument(QJsonObject{{EventsKey, array}}).toJson();
}

Events readEvents(const QByteArray &content)
{
    Events result;
    const auto array = arrayIn(content, EventsKey);
    const qsizetype count = array ? qMin<qsizetype>(array->size(), ModuleMacroManager::MostEvents) : 0;
    result.isComplete = array && count == array->size();
    for (qsizetype i = 0; i < count; i += 2) {
        auto action = eventIn(array->at(i).toObject());
        const bool isPaired = i + 1 < count;
        auto delay = isPaired ? eventIn(array->at(i + 1).toObject()) : nullptr;
        if (!action || (isPaired && !delay)) {
            result.isComplete = false;
            continue;
        }
        result.events.push_back(std::move(action));
        if (isPaired)
            result.events.push_back(std::move(delay));
    }
    return result;
}

QString singleLine(QString text, qsizetype length)
{
    text.truncate(length);
    for (QChar &c : text) {
        const auto category = c.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line ||
            category == QChar::Separator_Paragraph)
            c = QLatin1Char(' ');
    }
    return text;
}

} // namespace macrojson
