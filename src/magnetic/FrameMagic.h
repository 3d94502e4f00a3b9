#pragma once

#include <memory>
#include <QFrame>
#include <QList>

class DialogDeviceConnect;
class KeyTestPage;
class MagneticPage;
namespace Ui {
class FrameMagic;
}

/// The page of the magnetic switches: a keyboard on which keys are selected, and below it the sub-pages that
/// say what is done with them. GUI thread only.
class FrameMagic : public QFrame
{
    Q_OBJECT

public:
    /// Works on the connection that stands when the page is built; without one it shows and sends nothing.
    explicit FrameMagic(QWidget *parent = nullptr);
    ~FrameMagic() override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void keyReleaseEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildPages(DialogDeviceConnect *connection);
    void buildNavigation();
    void connectKeyboard();
    void connectDevice(const DialogDeviceConnect *connection);
    void showPage(int index);
    void showSelection();
    MagneticPage *currentPage() const;

    std::unique_ptr<Ui::FrameMagic> ui;
    QList<MagneticPage *> pages;    ///< by index, as in the stack
    KeyTestPage *keyTest = nullptr; ///< the last of them
};
