#pragma once

#include <QByteArray>
#include <QImage>

/// A drawn picture as a small PNG of 256 colours: those that most of its pixels have stay as they are, the
/// others, in the smoothed edges, become the nearest of them. About half the size of a PNG of all colours.
QByteArray previewPng(const QImage &image);
