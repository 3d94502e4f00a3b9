#pragma once

#include <QDialog>

#include <memory>

class QButtonGroup;

namespace Ui {
class ModuleLangMenu;
}

/// The drop-down of the interface's languages, each under its own name.
class ModuleLangMenu : public QDialog
{
    Q_OBJECT

public:
    explicit ModuleLangMenu(QWidget *parent = nullptr);
    ~ModuleLangMenu() override;

    /// Opens the menu under the button whose frame has this bottom-left corner, in global coordinates; does
    /// nothing while it is open. The menu grows to what its languages need.
    void openBelow(const QPoint &bottomLeft);

    /// Chooses the language of this index as a click does; an index without a button does nothing.
    void selectLanguage(int index);

Q_SIGNALS:
    /// A language was chosen: its index, and its name as the menu shows it. The current one may be chosen
    /// again.
    void onLangChanged(int langId, QString lang);

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void choose(int index);

    std::unique_ptr<Ui::ModuleLangMenu> ui;
    QButtonGroup *buttons;
    int marked = 0; ///< the language that Return would choose
};
