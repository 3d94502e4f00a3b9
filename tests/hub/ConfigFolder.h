#pragma once

#include <QByteArray>
#include <QString>

/// The folder config/ beside the test program. It holds the shipped files at first, and is gone afterwards.
class ConfigFolder
{
public:
    ConfigFolder();
    ~ConfigFolder();
    ConfigFolder(const ConfigFolder &) = delete;
    ConfigFolder &operator=(const ConfigFolder &) = delete;

    QString path(const char *name) const;
    void write(const char *name, const QByteArray &content) const;
    void remove(const char *name) const;

private:
    QString folder;
};
