#pragma once

#include <optional>
#include <QCoreApplication>
#include <QString>

class DialogDeviceConnect;

/// What the on-screen keyboard tells of one key: see ModuleKeyboard::setKeyTooltip. Both texts empty for a
/// plain key. GUI thread only.
struct KeyBubble
{
    Q_DECLARE_TR_FUNCTIONS(KeyBubble)

public:
    QString title;
    QString body;

    /// The key at a position on layer 0, with what its mode makes of the other layers. A plain key where the
    /// connection doesn't know the layer.
    static KeyBubble ofCustomLayer(const DialogDeviceConnect &connection, quint8 position);
    /// The key at a position on the Fn layer; nothing if the layer has no say in it.
    static std::optional<KeyBubble> ofFnLayer(const DialogDeviceConnect &connection, quint8 position);

private:
    static QString advancedText(quint8 mode, const QStringList &names);
    static QString macroText(quint8 slot);
};
