#pragma once

#include "KeyStyle.h"

#include <array>
#include <QPushButton>

class keySetTooltip;

/// One key of an on-screen keyboard: its legend, its state, and the values or the colour that a page shows on
/// it. A key with a function of the user's explains it in a bubble. GUI thread only.
class KeyboardButton : public QPushButton
{
    Q_OBJECT

public:
    enum DisplayMode : quint8 {
        Plain,
        ColouredBorder,
        TwoValues,    ///< one above the legend and one below
        CornerValues, ///< press and release in the lower corners, rapid trigger on the right
    };

    /// \a legend as a button's text: "&&" stands for "&".
    KeyboardButton(quint8 code, const QString &legend, QWidget *parent);

    quint8 code() const { return keyCode; }

    /// Whether the key has a function of the user's to tell of.
    bool hasBinding() const { return !bindingTitle.isEmpty(); }

    /// Marks the key as modified and gives its bubble these texts; with one of them empty the key is plain
    /// again and has no bubble. Takes away a coloured border and the mark of a hit.
    void setKeyContent(const QString &title, const QString &body);

    /// A mode that isn't a DisplayMode shows the plain key.
    void setDisplayMode(quint8 mode);

    /// Paints the whole key in a colour, whatever else it would show; an invalid colour ends that.
    void setFillColor(const QColor &color);
    QColor fillColor() const { return fill; }

    /// Text and border of the key; red and blue are exchanged when they are painted.
    void setBorderColor(const QColor &color);

    /// Values in millimetres; they show in the mode that they belong to.
    void setHalfValues(float upper, float lower);
    void setCornerValues(float press, float release);
    /// The second pair; it shows in place of the release value if \a shown.
    void setExtraValues(float upper, float lower, bool shown);
    /// The texts that stand on the key now, in reading order; none in a mode without values.
    QStringList captions() const;

    /// Marks a disabled key in orange until its content is set.
    void showHit();

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    using Pair = std::array<QString, 2>;

    void setStyleKind(keystyle::Style kind);
    void setPair(Pair &pair, const QString &first, const QString &second);
    void showBubble();
    void hideBubble();
    QString paintedLegend() const;
    bool showsValues() const { return mode == TwoValues || mode == CornerValues; }
    void paintFilled(QPainter &painter) const;
    void paintLegend(QPainter &painter, const QColor &color) const;
    void paintHalves(QPainter &painter, bool onDark) const;
    void paintCorners(QPainter &painter, bool onDark) const;

    QColor border = keystyle::DefaultKeyColor;
    QColor fill;
    QString bindingTitle;
    QString bindingBody;
    Pair halves{QStringLiteral("0.30"), QStringLiteral("0.215")};
    Pair corners = halves;
    Pair extra = halves;
    keySetTooltip *bubble = nullptr; // made when it first shows, gone with the binding
    quint8 keyCode;
    quint8 mode = Plain;
    keystyle::Style style = keystyle::Style::Base;
    bool hasExtra = false;
};
