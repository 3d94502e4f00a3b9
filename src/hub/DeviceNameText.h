#pragma once

class QLabel;
class QString;

/// Names of devices come from files that anyone may edit. They are shown as they stand: never as markup, and
/// never wider than their place.
namespace devicename {

/// Shows the name on a label of one line, cut with an ellipsis where it is wider than \a room (pixels). Tip
/// and accessible name hold it whole.
void show(QLabel *label, const QString &name, int room);

} // namespace devicename
