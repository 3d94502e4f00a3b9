#pragma once

#include <array>
#include <memory>
#include <QFrame>
#include <QList>
#include <QPoint>

class CustomTooltip;
class KeyboardButton;
class QAbstractButton;
class QButtonGroup;
class RubberBandLayer;
namespace Ui {
class ModuleKeyboard;
}

/// The on-screen keyboard that all pages of a native keyboard share. A key is named by its code; every
/// operation ignores a code that the board has no key for.
///
/// All keyboards of the program know each other, so that functions and disabled keys show on every page. A
/// keyboard that shows values or is painted on stays out of that. GUI thread only.
class ModuleKeyboard : public QFrame
{
    Q_OBJECT

public:
    static constexpr quint8 AllKeys = 255;

    explicit ModuleKeyboard(QWidget *parent = nullptr);
    ~ModuleKeyboard() override;

    /// How many keys may stay checked after a click. With 1 or less nothing is unchecked: keys that aren't
    /// checkable only report their clicks.
    void setSelectionLimit(int limit);
    /// The codes of the checked keys in the order of the board; the number of codes.
    int selectedCodes(QByteArray &codes) const;
    void selectAll(bool on);

    /// Fills a key, or all keys for code AllKeys; an invalid colour takes the fill away.
    void setKeyColor(quint8 code, const QColor &color);
    void setKeyBorder(quint8 code, const QColor &color);
    /// Values in millimetres; see KeyboardButton.
    void setKeyValues2(quint8 code, float upper, float lower);
    void setKeyValues3(quint8 code, float press, float release);
    void setKeyValues4(quint8 code, float upper, float lower, bool shown);

    /// Shows a key's function, on every keyboard if \a recurse. A title of "DISABLED" shows the key as
    /// disabled; an empty text as a plain key. Nothing is sent.
    void setKeyTooltip(quint8 code, const QString &title, const QString &body, bool recurse);
    /// Disables or enables a key of this board on every keyboard; disabling a key with a function clears the
    /// function instead. With \a notify the key is set on the connected keyboard too.
    void setKeyEnabledState(KeyboardButton *button, bool enable, bool notify);

    /// Each of these makes every key checkable and clears its content.
    void enterSelectMode();
    void enterValueMode(quint8 mode);
    void enterScaledValueMode(bool on);
    void enterLayerMode(bool on);
    /// Takes part in what the keyboards show together again; the keys stay as they are until a mode is
    /// entered.
    void resetModes();
    /// Disables every key 10 ms later, for good.
    void lockKeyboard();

    /// Shows or hides the knob 20 ms later: it shows only where functions are set.
    void updateLegend();
    void setFnEnabled(bool enabled);
    void setLegendVisible(bool visible);
    /// Marks a key of a locked keyboard as reached.
    void markKeyHit(quint8 code);

    /// The key with this code, null if the board has none.
    KeyboardButton *keyButton(quint8 code) const { return buttons[code]; }

Q_SIGNALS:
    /// A key was clicked; \a text is its legend as a button's text.
    void onKeyClicked(const QString &text, uchar hid);
    /// A key was cleared, disabled or enabled by the user; \a type is its mode byte before that.
    void onKeyChanged(uchar hid, uchar type, bool enable);
    /// The set of checked keys may have changed.
    void onSelect();

protected:
    void changeEvent(QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void addKeys();
    void keyClicked(int code);
    void keepToLimit();
    void makeCheckable(quint8 displayMode);
    void applyKnobRule();
    bool isApart() const { return locked || selectMode || valueMode; }

    void showFunction(KeyboardButton *button, const QString &title, const QString &body);
    void showEnabled(KeyboardButton *button, bool enable);
    void propagate(KeyboardButton *button, bool notify);
    void writeChange(KeyboardButton *button, bool enabled);
    void clearPartner(quint8 code);

    void selectBand();
    void endBand();
    KeyboardButton *keyAt(const QPoint &position) const;
    void offerAction(KeyboardButton *button);
    void moveFocus(int key, bool extending);
    void rove(KeyboardButton *button);
    void keepTabStop();

    std::unique_ptr<Ui::ModuleKeyboard> ui;
    QButtonGroup *buttonGroup;
    std::array<KeyboardButton *, 256> buttons{}; ///< by code
    QList<KeyboardButton *> disabledKeys;        ///< by the user, and shown as such
    KeyboardButton *popupTarget = nullptr;
    CustomTooltip *popup;
    RubberBandLayer *bandLayer;
    KeyboardButton *tabStop = nullptr; ///< the key that Tab leads to
    int SelectionLimit = 300;
    bool locked = false;
    bool selectMode = false;
    bool valueMode = false;
    bool dragging = false;
    QPoint dragStart;
    QPoint dragEnd;
};
