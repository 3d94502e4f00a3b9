#pragma once

#include <QString>
#include <QStringList>
#include <QVariantMap>

/// One sibling stand-in, installed under a name of its own in a folder of the test.
class StandIn
{
public:
    /// Copies the stand-in to \a folder as the program \a name, with \a orders for it (see StandInWindow).
    /// \a name has the ending that programs have in the product, ".exe", on every system.
    StandIn(const QString &folder, const QString &name, QVariantMap orders = {});
    /// Ends whatever still runs under the name.
    ~StandIn();
    StandIn(const StandIn &) = delete;
    StandIn &operator=(const StandIn &) = delete;

    /// The path to start, as the hub would.
    QString path() const { return programPath; }
    QString name() const;
    /// What it has told so far.
    QStringList report() const;

private:
    QString programPath;
    QString reportPath;
};
