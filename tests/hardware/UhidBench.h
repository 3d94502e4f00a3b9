#pragma once

#include <QByteArray>
#include <QFile>
#include <QProcess>

/// The program that makes virtual keyboards devices of the kernel, and what it tells of them. Their state is
/// the judge of what the hub has done.
class UhidBench
{
public:
    /// Starts \a program, which ends with the object. What the devices receive is noted in a file.
    UhidBench(const QString &program, const QString &trafficFile);
    ~UhidBench();

    /// Plugs a model ("usb:" before it for a USB device) and waits for the kernel to have it; 0 if that
    /// fails.
    int plug(const QByteArray &model);
    /// False if there was no such device.
    bool unplug(int number);
    /// Presses a key for so many milliseconds, down to the bottom.
    void press(int number, int position, int holdMs);
    void setBattery(int number, int percent);

    /// What a key does on layer 0 of the active profile, as hex.
    QByteArray key(int number, int position);
    /// A word of the keyboard's state: profile, keytest, calibrating or battery; -1 if there is no such word.
    int state(int number, const QByteArray &word);
    /// The keyboard's notes on bad frames and the like, each of which should be "NAME 0".
    QByteArray faults(int number);

private:
    /// Gives a command and waits for the line that begins with \a answer; its rest, or an empty text.
    QByteArray ask(const QByteArray &command, const QByteArray &answer);

    QProcess process;
    QFile traffic;
};
