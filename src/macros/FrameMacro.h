#pragma once

#include <QFrame>

/// The page of the macros. GUI thread only.
class FrameMacro : public QFrame
{
    Q_OBJECT

public:
    explicit FrameMacro(QWidget *parent = nullptr);
};
