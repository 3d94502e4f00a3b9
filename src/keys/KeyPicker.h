#pragma once

#include "KeyEntry.h"

#include <array>
#include <QDialog>
#include <QWidgetList>

class PickerSlot;
class QButtonGroup;
class QPushButton;

/// What the pickers of key functions have in common: a modal dialog that covers its parent, or the primary
/// screen, and picks a combination of up to three keys. GUI thread only.
///
/// A picker is made for one exec() and read after it returned QDialog::Accepted. It may stand on the stack:
/// a parent that is hidden or destroyed meanwhile ends it as rejected, and is never left with it as a child.
/// The caller has to see for itself whether it outlived exec().
class KeyPicker : public QDialog
{
    Q_OBJECT

public:
    /// What was picked. A combination is 00 k1 k2 k3 with 0 for a place not used, all 0 for nothing at all.
    const KeyEntry &entry() const { return picked; }

protected:
    static constexpr size_t SlotCount = 3; ///< slot i shows byte i + 1 of the entry

    /// Lays the dialog over its parent; what stands in it is up to the picker.
    explicit KeyPicker(QWidget *parent);

    struct Parts
    {
        QWidget *card; ///< holds all the rest
        std::array<PickerSlot *, SlotCount> slotLabels;
        QWidget *basicBlock; ///< empty; is filled with keys, and so is the next
        QWidget *extendedBlock;
        QPushButton *ok;
        QPushButton *cancel;
    };
    /// The parts in a generated form, which have the same names in each.
    template <typename Form>
    static Parts partsOf(const Form &form)
    {
        return {form.framePicker,  {form.labelSelect1, form.labelSelect2, form.labelSelect3},
                form.widgetBasic,  form.widgetExtended,
                form.pushButtonOK, form.pushButtonCancel};
    }
    /// Takes over what every picker has in its form. The keys are \a keyWidth pixels wide.
    void setUp(const Parts &parts, int keyWidth);

    /// Has Tab come by the row below all else, with OK and Cancel, after this control.
    void leadTabBehind(QWidget *last);

    /// Forgets what was picked, and shows that.
    virtual void clearPicked();
    /// Takes a key into the first place that is free; does nothing if none is.
    virtual void pickKey(quint8 usage);
    /// Empties one place; those after it stay where they are.
    virtual void clearSlot(size_t slot);

    PickerSlot *slotLabel(size_t slot) const { return slotLabels.at(slot); }

    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

    KeyEntry picked;

private:
    void coverParent();
    void markKeys();

    QButtonGroup *keyGroup = nullptr;
    std::array<PickerSlot *, SlotCount> slotLabels{};
    QWidgetList tabRow; ///< below all else, from left to right
};
