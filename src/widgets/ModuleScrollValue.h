#pragma once

#include <memory>
#include <QFrame>
#include <QStringList>

namespace Ui {
class ModuleScrollValue;
}

/// A wheel that shows five texts of a list, which repeats without end; the one in the centre is chosen.
/// The mouse wheel, a click on a text and the arrow keys turn it. GUI thread only.
class ModuleScrollValue : public QFrame
{
    Q_OBJECT

public:
    explicit ModuleScrollValue(QWidget *parent = nullptr);
    ~ModuleScrollValue() override;

    /// Takes the list, starts it over and signals the index that now stands in the centre. An empty list
    /// empties the wheel, with no signal.
    void setValues(const QStringList &values);
    /// Shows an index without a signal; any number is taken modulo the list's size.
    void setIndex(int index);
    /// Turns the wheel by some entries, downward in the list if positive, and signals.
    void stepBy(qint64 steps);

    /// The index in the centre; -1 while the list is empty.
    int currentIndex() const { return int(index); }
    QString currentText() const { return texts.value(index); }

Q_SIGNALS:
    /// The user, or a new list, put another index in the centre.
    void onIndexChanged(int index);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void refresh();

    std::unique_ptr<Ui::ModuleScrollValue> ui;
    QStringList texts;
    qint64 position = 0; // entry in the uppermost slot, before the list's size is taken off
    qint64 index = -1;
};
