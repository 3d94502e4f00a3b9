#pragma once

#include "Look.h"

#include <QTabBar>

class QPropertyAnimation;

/// Tabs as flat cards; a bar glides along the bottom edge to the tab that becomes current.
/// GUI thread only.
class CustomTabBar : public QTabBar
{
    Q_OBJECT
    Q_PROPERTY(int currentX READ currentX WRITE setCurrentX)
    Q_PROPERTY(int currentWidth READ currentWidth WRITE setCurrentWidth)

public:
    explicit CustomTabBar(QWidget *parent = nullptr);

    /// Left end and width of the gliding bar; numbers that no widget reaches are clamped.
    int currentX() const { return barX; }
    void setCurrentX(int x);
    int currentWidth() const { return barWidth; }
    void setCurrentWidth(int width);

public Q_SLOTS:
    /// Sends the bar to a tab; an index that is no tab is ignored.
    void onCurrentChanged(int index);

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    QSize tabSizeHint(int index) const override;

private:
    void setHoveredTab(int index);
    void paintTab(QPainter &painter, int index) const;

    int barX = 0;
    int barWidth = 0;
    QPropertyAnimation *slide;
    QColor normalColor{0xF0, 0xF0, 0xF0};
    QColor hoverColor{0xDC, 0xDC, 0xDC};
    QColor selectedColor{0xFF, 0xFF, 0xFF};
    int hoveredTab = -1;
};
