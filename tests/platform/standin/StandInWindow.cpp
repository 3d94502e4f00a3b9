#include "StandInWindow.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr const char *HandOverKeys[] = {"DeviceId",        "DevicePath",   "VendorDevicePath", "ByDeviceUuid",
                                        "OrbeDeviceIndex", "JmDevicePath", "ByLocale",         "JmLocale",
                                        "LanguageCode",    "LANGUAGE"};

/// The place of the shared values, as QSettings takes it; it gives registry keys with a backslash before
/// them.
QString placeOf(const QSettings &orders)
{
    const QString place = orders.value(QStringLiteral("settings")).toString();
    return place.startsWith(QLatin1String("\\HKEY_")) ? place.mid(1) : place;
}

QSettings::Format formatOf(const QString &place)
{
    return place.startsWith(QLatin1String("HKEY_")) ? QSettings::NativeFormat : QSettings::IniFormat;
}

} // namespace

StandInWindow::StandInWindow(const QSettings &orders)
    : values(placeOf(orders), formatOf(placeOf(orders)))
    , reportFile(orders.value(QStringLiteral("report")).toString())
    , deviceLabel(new QLabel(this))
    , returnAfter(orders.value(QStringLiteral("returnAfter")).toInt())
{
    setWindowTitle(orders.value(QStringLiteral("title")).toString());
    setStyleSheet(QStringLiteral("StandInWindow { background: #6329B6; } QLabel { color: white; }"));
    resize(600, 400);
    auto *layout = new QVBoxLayout(this);
    auto *returnButton = new QPushButton(QStringLiteral("Return to the hub"), this);
    layout->addWidget(deviceLabel);
    layout->addWidget(returnButton);
    connect(returnButton, &QPushButton::clicked, this, &StandInWindow::askForReturn);

    auto *timer = new QTimer(this);
    connect(timer, &QTimer::timeout, this, &StandInWindow::watchValues);
    timer->start(50);

    const WId handle = winId(); // which makes the native window
    if (orders.value(QStringLiteral("handle")).toBool())
        values.setValue(QStringLiteral("OrbeWnd"), uint(handle));
    if (!orders.value(QStringLiteral("hidden")).toBool())
        show();
    report(QStringLiteral("started"));
}

void StandInWindow::watchValues()
{
    values.sync();
    bool handedOver = false;
    for (const char *name : HandOverKeys) {
        const QString key = QLatin1String(name);
        const QVariant value = values.value(key);
        if (seen.value(key) == value)
            continue;
        seen[key] = value;
        report(key + QLatin1Char('=') + value.toString());
        handedOver |= key.contains(QLatin1String("Device")) && !value.toString().isEmpty();
    }
    if (!handedOver)
        return;
    deviceLabel->setText(seen.value(QStringLiteral("DevicePath")).toString());
    if (returnAfter > 0)
        QTimer::singleShot(returnAfter, this, &StandInWindow::askForReturn);
}

void StandInWindow::askForReturn()
{
    values.setValue(QStringLiteral("OrbeReturn"), 1);
    report(QStringLiteral("asked back"));
}

void StandInWindow::closeEvent(QCloseEvent *event)
{
    report(QStringLiteral("closed"));
    QWidget::closeEvent(event);
    QCoreApplication::quit();
}

void StandInWindow::report(const QString &line)
{
    if (!reportFile.isOpen() && !reportFile.open(QIODevice::WriteOnly | QIODevice::Append))
        return;
    reportFile.write(line.toUtf8() + '\n');
    reportFile.flush();
}
