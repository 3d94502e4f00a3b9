#pragma once

#include "MagneticPage.h"

#include <memory>
#include <QList>

class QButtonGroup;
class QLabel;
namespace Ui {
class SwitchTypePage;
}

/// Which kind of switch each key holds. A kind is picked, and every key clicked then is given it at once.
/// GUI thread only.
class SwitchTypePage : public MagneticPage
{
    Q_OBJECT

public:
    explicit SwitchTypePage(QWidget *parent = nullptr);
    ~SwitchTypePage() override;

    void enterPage() override;
    void leavePage() override;
    void keyClicked(quint8 code) override;

protected:
    void changeEvent(QEvent *event) override;

private:
    void addTypes();
    void pickType(int id);
    void showNames();
    void showKey(quint8 code, quint8 type);
    QString nameOf(quint8 type) const;

    std::unique_ptr<Ui::SwitchTypePage> ui;
    QButtonGroup *group;
    QList<QLabel *> names; ///< by place of the button
    quint8 paintType = 0;  ///< that a clicked key is given
};
