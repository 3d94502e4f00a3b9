#pragma once

#include <functional>
#include <QDeadlineTimer>
#include <QObject>
#include <QQueue>

class DemoDesk;

/// Walks through the program by itself and leaves a picture of everything it meets in a folder. GUI thread
/// only.
class DemoTour : public QObject
{
    Q_OBJECT

public:
    /// The folder must exist. The only language is a locale such as de_DE; empty stands for all of them on
    /// the cards and Chinese on the pages.
    DemoTour(const QString &pictureFolder, const QString &onlyLanguage, DemoDesk *demoDesk,
             QObject *parent = nullptr);

    /// Begins. At the end the hub is closed as a user would; if something that the tour waits for doesn't
    /// come, the application is left with code 1.
    void start();

    /// What the program is to return: \a code, or 1 if the tour lacks something. Tells how many pictures
    /// there are, so that a tour that never came to its end can be told from one that did.
    int outcome(int code) const;

private:
    using Condition = std::function<bool()>;

    void waitFor(const QString &what, Condition condition);
    void act(std::function<void()> action);
    void actOn(const QString &word);
    void tryOn(const QString &word, QDeadlineTimer limit);
    void picture(const QString &name);
    void complain(const QString &fault);

    void planCards();
    void planLanguage(const QString &locale);
    void planLanguages();
    void planNativeKeyboard();
    void planPages();
    void planTray();
    void planOtherDevices();
    void planSibling();
    void planTrouble();
    void planBoard();
    void planEnd();
    void next();

    QString folder;
    QString language; ///< the only one to show; empty for all
    DemoDesk *desk;
    QQueue<std::function<void()>> steps;
    int pictures = 0;
    bool faulty = false;
    bool ended = false;
};
