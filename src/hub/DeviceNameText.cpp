#include "DeviceNameText.h"

#include <QLabel>
#include <QRegularExpression>

namespace devicename {

namespace {

QString oneLine(QString name)
{
    static const QRegularExpression breaks(QStringLiteral("[\\p{Cc}\\p{Zl}\\p{Zp}]"));
    return name.replace(breaks, QStringLiteral(" "));
}

/// A text as a tip. Tips guess from their text whether it is HTML; a name never is.
QString plainTip(const QString &text)
{
    return Qt::mightBeRichText(text) ? Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal) : text;
}

} // namespace

void show(QLabel *label, const QString &name, int room)
{
    label->setTextFormat(Qt::PlainText);
    label->ensurePolished();
    label->setText(label->fontMetrics().elidedText(oneLine(name), Qt::ElideRight, room));
    label->setToolTip(plainTip(name));
    label->setAccessibleName(name);
}

} // namespace devicename
