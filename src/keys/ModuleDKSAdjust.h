#pragma once

#include <memory>
#include <QFrame>

namespace Ui {
class ModuleDKSAdjust;
}

/// The popup in which the travel of a dynamic keystroke is set: 0 to 4 mm in steps of 0.005 mm. It hides
/// itself when the user is done. GUI thread only.
class ModuleDKSAdjust : public QFrame
{
    Q_OBJECT

public:
    explicit ModuleDKSAdjust(QWidget *parent = nullptr);
    ~ModuleDKSAdjust() override;

    /// Starts from a travel in millimetres, as text without a unit.
    void setTravelText(const QString &text);

    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user saves; \a text is what stands in the line edit, in millimetres, and may be no number.
    void onValueSave(const QString &text);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    std::unique_ptr<Ui::ModuleDKSAdjust> ui;
};
