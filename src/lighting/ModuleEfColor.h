#pragma once

#include <memory>
#include <QColor>
#include <QFrame>
#include <QTimer>

class DialogColorPicker;
class QButtonGroup;
class QStandardItemModel;
namespace Ui {
class ModuleEfColor;
}

/// The colour of the light effect, one of seven dots or any other, and all settings of the side light. GUI
/// thread only.
class ModuleEfColor : public QFrame
{
    Q_OBJECT

public:
    explicit ModuleEfColor(QWidget *parent = nullptr);
    ~ModuleEfColor() override;

    /// Shows the side light as the keyboard reported it, without a signal. Of a shorter reply than 8 bytes
    /// nothing is taken, and an effect, speed or brightness without a button leaves the one that stands.
    void setSideLed(const QByteArray &reply);

Q_SIGNALS:
    /// The option is the place of the colour in the list of the dots, or 8 for any other colour.
    void onSetColor(const QColor &color, int option);
    /// The ten bytes of the side light, the first one free for the command.
    void onSetSideLed(const QByteArray &data);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildDots();
    void rotateDots(int column);
    void showDots();
    void buildSwatches();
    void takeCustomColor(const QColor &color);
    void paintStage() const;
    void showNames();

    void connectSideLight();
    void showPickerControls();
    void updateSideLight();
    void openPicker();
    void takePickedColor(const QColor &color);

    std::unique_ptr<Ui::ModuleEfColor> ui;
    QStandardItemModel *dots;
    DialogColorPicker *picker = nullptr; ///< made at its first use
    QTimer pickTimer;                    ///< runs until the user rests in the picker

    // The side light
    QColor sideColor{Qt::white};
    quint8 sideEffect = 0;
    quint8 sideColorMode = 0; ///< 0 for all colours, 1 for the one above
    quint8 sideBrightness = 0;
    quint8 sideSpeed = 0;
    bool fromKeyboard = false; ///< holds back the signal while a reply is taken over
};
