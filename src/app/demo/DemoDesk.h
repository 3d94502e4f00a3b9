#pragma once

#include "DemoBoard.h"
#include "VirtualBus.h"

#include <QTimer>
#include <QWidget>

class QCheckBox;
class QLabel;
class QVBoxLayout;

/// The desk that the demo's virtual devices lie on: a small window with a switch for each that plugs it in
/// and pulls it out. Ctrl and a digit do the same from the keyboard. Another switch lets fingers press the
/// keys of all keyboards that are plugged in, one after another. Beside it a second window shows the light of
/// a keyboard. GUI thread only.
class DemoDesk : public QWidget
{
    Q_OBJECT

public:
    /// Plugs the models whose names are given in; the others lie ready.
    explicit DemoDesk(const QStringList &plugged, QWidget *parent = nullptr);

    /// Names of all models.
    static QStringList modelNames();
    /// All but the receiver that no keyboard is paired with. It has no card, and every search for keyboards
    /// asks it again and again for two seconds.
    static QStringList modelsWithCard();

    /// Plugs a model in or pulls it out; a name that isn't there changes nothing.
    void setPlugged(const QString &model, bool plugged);
    /// Leaves exactly these models plugged in.
    void plugOnly(const QStringList &models);
    /// The next opens of a plugged model fail for want of permission, or succeed again. Unknown ones change
    /// nothing.
    void setDenied(const QString &model, bool denied);
    /// A finger holds a key of all plugged keyboards at the bottom for a few seconds. False for a code that
    /// no key has.
    bool holdKey(int code);
    /// The window that shows a keyboard's light.
    DemoBoard *board() { return &lightBoard; }

protected:
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addSwitch(QVBoxLayout *layout, const sim::Model &model, int number, bool plugged);
    void plug(const std::string &model, bool plugged);
    void addFingers(QVBoxLayout *layout);
    void addBoard(QVBoxLayout *layout);
    void pressNextKey();
    void pressEverywhere(int position, std::chrono::milliseconds travel, std::chrono::milliseconds hold);
    void offerKeyboards();
    void standBesideHub();
    void retranslate();

    QLabel *title;
    QCheckBox *fingersBox;
    QCheckBox *lightBox;

    std::map<std::string, virtualhid::DevicePtr> devices;
    DemoBoard lightBoard;
    QTimer fingerTimer;
    QTimer placing;     ///< settles the windows after the hub has changed its size
    size_t nextKey = 0; ///< in the order of the board
};
