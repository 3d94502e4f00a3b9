#pragma once

class QWidget;

/// The hub's window; null until it is made and after it is gone. GUI thread only.
QWidget *hubWindow();
