#pragma once

class QString;
class QWidget;

/// What screen readers are told about the custom controls.
namespace accessible {

/// Gives the control a name unless its page gave it one; called again (say, in another language), it replaces
/// only its own earlier name.
void setDefaultName(QWidget *control, const QString &name);

/// Tells screen readers what the controls without a standard counterpart are; called again it does nothing.
void installRoles();

} // namespace accessible
