#pragma once

#include "BoardPicture.h"
#include "VirtualDevice.h"

#include <QList>
#include <QTimer>

class QComboBox;
class QLabel;

/// Shows what one of the virtual keyboards shines like, and lets the mouse press its keys. It turns to the
/// keyboard that the hub connects to; the user can choose another one. Costs nothing while it isn't seen.
/// GUI thread only.
class DemoBoard : public QWidget
{
    Q_OBJECT

public:
    explicit DemoBoard(QWidget *parent = nullptr);

    /// The plugged keyboards, in the order in which they are offered. What is shown stays if it is among
    /// them.
    void setKeyboards(const QList<virtualhid::DevicePtr> &plugged);
    /// Shows one of them; anything else changes nothing.
    void choose(const virtualhid::DevicePtr &keyboard);

Q_SIGNALS:
    /// The user closed the window.
    void closed();

protected:
    void closeEvent(QCloseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void refresh();
    void followHub();
    void moveKey(int position, int depth);
    void retranslate();
    QString caption(const sim::LightView &view) const;

    QList<virtualhid::DevicePtr> keyboards;
    virtualhid::DevicePtr shown;
    virtualhid::DevicePtr connected; ///< the one that the hub had open at the last look
    sim::LightShow light;
    BoardPicture *picture;
    QComboBox *chooser;
    QLabel *captionLabel;
    QLabel *hintLabel;
    QTimer frameTimer;
    QTimer hubTimer;
};
