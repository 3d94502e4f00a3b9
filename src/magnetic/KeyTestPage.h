#pragma once

#include "MagneticPage.h"

#include <array>
#include <memory>
#include <QHash>
#include <QPixmap>
#include <QStringList>

class QKeyEvent;
class QLabel;
class QLayout;
namespace Ui {
class KeyTestPage;
}

/// Two tests: how deep the keyboard says that a key is pressed, and which keys the computer receives. Each
/// runs on, also on other pages, until it is switched off. GUI thread only.
class KeyTestPage : public MagneticPage
{
    Q_OBJECT

public:
    explicit KeyTestPage(QWidget *parent = nullptr);
    ~KeyTestPage() override;

    bool usesKeys() const override { return false; }
    void enterPage() override;
    void readDone() override;

    /// The keyboard sent a depth (GetKeyTravel), whatever sub-page shows.
    void showSample();
    /// Key events that reached FrameMagic, whatever sub-page shows.
    void takeKeyPress(const QKeyEvent &event);
    void takeKeyRelease(const QKeyEvent &event);

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    static constexpr int PressFrames = 10;

    void switchTravelTest(bool on);
    void switchKeyTest(bool on);
    void showDepth();
    void showFrame(int frame);
    void hintAtData(bool shown);

    void releaseAll();
    void showHeldKeys();
    QLabel *nameLabel(const QString &name, QWidget *area);
    void clearNames(QLayout *layout);

    std::unique_ptr<Ui::KeyTestPage> ui;
    std::array<QPixmap, PressFrames> frames;
    int shownFrame = -1;
    bool switchMissed = false; ///< the travel test was switched while the keyboard was read

    QStringList heldKeys;
    QHash<quint32, QString> heldNames; ///< by native scan code, as they were called when they went down
    QList<QLabel *> spareLabels;       ///< taken out of a layout and hidden
};
