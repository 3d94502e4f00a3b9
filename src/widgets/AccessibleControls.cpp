#include "AccessibleControls.h"

#include "ModuleScrollValue.h"
#include "SuperLabel.h"

#include <QAccessibleWidget>
#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QVariant>

namespace {

constexpr auto DefaultNameProperty = "defaultAccessibleName";
constexpr auto RoleProperty = "accessibleRole";
constexpr auto OnProperty = "accessibleOn";

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

/// A control of a class that says nothing of what it is.
class AccessibleByRole : public QAccessibleWidget
{
public:
    explicit AccessibleByRole(QWidget *shown)
        : QAccessibleWidget(shown, QAccessible::Role(shown->property(RoleProperty).toInt()))
    {
    }

    QString text(QAccessible::Text kind) const override
    {
        const QString told = QAccessibleWidget::text(kind);
        const auto *label = qobject_cast<QLabel *>(widget());
        return kind == QAccessible::Name && told.isEmpty() && label ? label->text() : told;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        const QVariant on = widget()->property(OnProperty);
        if (on.isValid() && role() == QAccessible::ListItem) {
            state.selectable = true;
            state.selected = on.toBool();
        } else if (on.isValid()) {
            state.checkable = true;
            state.checked = on.toBool();
        }
        return state;
    }

    QStringList actionNames() const override { return QAccessibleWidget::actionNames() << pressAction(); }

    void doAction(const QString &action) override
    {
        if (action != pressAction()) {
            QAccessibleWidget::doAction(action);
            return;
        }
        const QPointF middle = QRectF(widget()->rect()).center();
        for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
            const auto held = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
            QMouseEvent event(type, middle, widget()->mapToGlobal(middle), Qt::LeftButton, held, {});
            QCoreApplication::sendEvent(widget(), &event);
        }
    }
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
    auto *widget = qobject_cast<QWidget *>(object);
    return widget && widget->property(RoleProperty).isValid() ? new AccessibleByRole(widget) : nullptr;
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

void accessible::setRole(QWidget *control, QAccessible::Role role)
{
    installRoles();
    control->setProperty(RoleProperty, int(role));
    // A label that got a text in its constructor is known as a mere label by now.
    if (QAccessibleInterface *former = QAccessible::queryAccessibleInterface(control))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(former));
}

void accessible::setOn(QWidget *control, bool on)
{
    if (control->property(OnProperty) == QVariant(on))
        return;
    control->setProperty(OnProperty, on);
    QAccessible::State changed;
    changed.checked = true;
    changed.selected = true;
    QAccessibleStateChangeEvent notice(control, changed);
    QAccessible::updateAccessibility(&notice);
}

void accessible::installRoles()
{
    QAccessible::installFactory(&createInterface);
}
