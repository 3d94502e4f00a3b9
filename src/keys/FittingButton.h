#pragma once

#include <QPushButton>

/// A button whose text stays within it, as it stands and "&" included: one that is too long is set narrower,
/// then cut with an ellipsis and told whole in a tool tip. GUI thread only.
class FittingButton : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;

    /// Shows what a key does; with no function it shows \a placeholder.
    void setFunction(const QString &function, const QString &placeholder);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    qreal narrowing() const;
    QString fittingText() const;
};
