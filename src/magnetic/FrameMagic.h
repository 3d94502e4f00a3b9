#pragma once

#include <QFrame>

/// The page of the magnetic switches. GUI thread only.
class FrameMagic : public QFrame
{
    Q_OBJECT

public:
    explicit FrameMagic(QWidget *parent = nullptr);
};
