#pragma once

#include <QProgressBar>

/// A slim progress bar under a caption with its percentage. Nothing of it moves by itself. GUI thread only.
class ProgressBadge : public QProgressBar
{
    Q_OBJECT

public:
    explicit ProgressBadge(QWidget *parent = nullptr);

    /// What goes on; also the name that screen readers tell. Cut off at its end where it needs more room than
    /// there is.
    void setCaption(const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
