#pragma once

#include <QAccessible>

class QString;
class QWidget;

/// What screen readers are told about the custom controls.
namespace accessible {

/// Gives the control a name unless its page gave it one; called again (say, in another language), it replaces
/// only its own earlier name.
void setDefaultName(QWidget *control, const QString &name);

/// What a control is, where its class doesn't say: a picture that is pressed like a button, say. Pressing it
/// through the accessibility interface clicks its middle.
void setRole(QWidget *control, QAccessible::Role role);

/// Whether a control with such a role is on: ticked, chosen or selected.
void setOn(QWidget *control, bool on);

/// Tells screen readers what the controls without a standard counterpart are; called again it does nothing.
void installRoles();

} // namespace accessible
