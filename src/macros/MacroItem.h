#pragma once

#include <memory>
#include <QFrame>

namespace Ui {
class MacroItem;
}

/// A row in the list of macros: its name, and buttons to rename and delete it. A double click renames, too.
/// Shows what it is told and changes nothing itself. GUI thread only.
class MacroItem : public QFrame
{
    Q_OBJECT

public:
    /// First argument of onOperation.
    enum Operation { Select = 0, Delete = 1, Rename = 2 };

    MacroItem(quint8 id, const QString &name, QWidget *parent = nullptr);
    ~MacroItem() override;

    /// Of the macro that the row stands for.
    quint8 macroId() const { return id; }

    /// The name; after a rename the one that was typed. It is cut in the row where it is too long.
    const QString &text() const { return name; }
    void setSelected(bool on);
    /// Has Tab come by the row after a control that stands above it; gives the row's last control.
    QWidget *followInTabOrder(QWidget *before);

Q_SIGNALS:
    void onOperation(int operation, QWidget *from);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void beginRename();
    void endRename(bool take);
    void showName();
    void showButtons();
    void showTips();

    std::unique_ptr<Ui::MacroItem> ui;
    quint8 id;
    QString name;
    bool selected = false;
};
