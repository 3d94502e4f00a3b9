#pragma once

#include <memory>
#include <QFrame>

namespace Ui {
class FrameAbout;
}

/// The last page of a native keyboard: a picture, fixed texts and cards of tutorials. It asks no keyboard,
/// and its two firmware buttons do nothing. GUI thread only.
class FrameAbout : public QFrame
{
    Q_OBJECT

public:
    explicit FrameAbout(QWidget *parent = nullptr);
    ~FrameAbout() override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void addTutorials();

    std::unique_ptr<Ui::FrameAbout> ui;
};
