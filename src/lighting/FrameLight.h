#pragma once

#include <QFrame>

/// The page of the lighting. GUI thread only.
class FrameLight : public QFrame
{
    Q_OBJECT

public:
    explicit FrameLight(QWidget *parent = nullptr);
};
