#pragma once

#include <functional>
#include <QObject>
#include <QQueue>

class DemoDesk;

/// Walks through the program by itself and leaves a picture of everything it meets in a folder. GUI thread
/// only.
class DemoTour : public QObject
{
    Q_OBJECT

public:
    /// The folder must exist. The only language is a locale such as de_DE; empty stands for all of them on the
    /// cards and Chinese on the pages.
    DemoTour(const QString &pictureFolder, const QString &onlyLanguage, DemoDesk *demoDesk,
             QObject *parent = nullptr);

    /// Begins; the application is left with code 0 at the end, with 1 if something that the tour waits for
    /// doesn't come.
    void start();

private:
    using Condition = std::function<bool()>;

    void waitFor(const QString &what, Condition condition);
    void act(std::function<void()> action);
    void picture(const QString &name);

    void planCards();
    void planLanguages();
    void planNativeKeyboard();
    void planBoard();
    void planPages();
    void next();

    QString folder;
    QString language; ///< the only one to show; empty for all
    DemoDesk *desk;
    QQueue<std::function<void()>> steps;
};
