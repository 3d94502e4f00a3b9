#include "AccessibleControls.h"

#include "ModuleScrollValue.h"
#include "SuperLabel.h"

#include <QAccessibleWidget>
#include <QVariant>

namespace {

constexpr auto DefaultNameProperty = "defaultAccessibleName";

/// A picture label that is pressed like a button.
class AccessibleSuperLabel : public QAccessibleWidget
{
public:
    explicit AccessibleSuperLabel(SuperLabel *shown)
        : QAccessibleWidget(shown, QAccessible::Button)
        , label(shown)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = label->isSelected();
        return state;
    }

    QStringList actionNames() const override { return QAccessibleWidget::actionNames() << pressAction(); }

    void doAction(const QString &action) override
    {
        if (action == pressAction()) {
            label->press();
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

private:
    SuperLabel *label;
};

/// A wheel of texts reads as a spin box with the centre text as its value.
class AccessibleWheel : public QAccessibleWidget
{
public:
    explicit AccessibleWheel(ModuleScrollValue *shown)
        : QAccessibleWidget(shown, QAccessible::SpinBox)
        , wheel(shown)
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? wheel->currentText() : QAccessibleWidget::text(kind);
    }

    QStringList actionNames() const override
    {
        return QAccessibleWidget::actionNames() << increaseAction() << decreaseAction();
    }

    void doAction(const QString &action) override
    {
        if (action == increaseAction()) {
            wheel->stepBy(1);
        } else if (action == decreaseAction()) {
            wheel->stepBy(-1);
        } else {
            QAccessibleWidget::doAction(action);
        }
    }

private:
    ModuleScrollValue *wheel;
};

QAccessibleInterface *createInterface(const QString &className, QObject *object)
{
    if (className == QLatin1String("SuperLabel")) {
        if (auto *label = qobject_cast<SuperLabel *>(object))
            return new AccessibleSuperLabel(label);
    } else if (className == QLatin1String("ModuleScrollValue")) {
        if (auto *wheel = qobject_cast<ModuleScrollValue *>(object))
            return new AccessibleWheel(wheel);
    }
    return nullptr;
}

} // namespace

void accessible::setDefaultName(QWidget *control, const QString &name)
{
    const QString present = control->accessibleName();
    if (!present.isEmpty() && present != control->property(DefaultNameProperty).toString())
        return;
    control->setProperty(DefaultNameProperty, name);
    control->setAccessibleName(name);
}

void accessible::installRoles()
{
    QAccessible::installFactory(&createInterface);
}
