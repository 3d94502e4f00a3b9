#pragma once

#include <QDialog>
#include <QPointer>

/// Dims a page and shows a small widget modally in the middle of it. exec() returns when the widget hides
/// itself: with what setResult() was given meanwhile, 0 (rejected) at first. The widget is never owned: it
/// comes back hidden and without a parent, however the dialog ends. GUI thread only.
class ModuleGeneralMasker : public QDialog
{
    Q_OBJECT

public:
    /// Covers frameWidget, or the primary screen if there is none. Without a child, exec() ends at once.
    explicit ModuleGeneralMasker(QWidget *child, QWidget *frameWidget = nullptr);
    ~ModuleGeneralMasker() override;

    void done(int result) override;

Q_SIGNALS:
    /// The mask was pressed outside the child.
    void onClicked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void releaseChild();

    QPointer<QWidget> child;
};
