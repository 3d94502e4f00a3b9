#pragma once

#include "LightWork.h"
#include "LightWorksFile.h"

#include <memory>
#include <QColor>
#include <QFrame>
#include <QPointer>
#include <QRandomGenerator>

class DialogColorPicker;
class DialogDeviceConnect;
class LightWorksModel;
class NoticeBar;
class QButtonGroup;
namespace Ui {
class FrameLight;
}

/// The page of the light: keys are painted one by one, the painting is written to a picture layer of the
/// keyboard or read from one, and paintings are kept as named works in a file. Nothing goes to the keyboard
/// but on a click on a layer. GUI thread only.
class FrameLight : public QFrame
{
    Q_OBJECT

public:
    explicit FrameLight(QWidget *parent = nullptr);
    ~FrameLight() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildBoard();
    void buildTools();
    void buildTable();
    void connectLayers();
    void connectWorks();
    void showTexts();

    void paintKey(quint8 code);
    void paintSelection();
    void clearPainting();
    void showMap();
    QColor colourAt(int position) const;

    void setColour(const QColor &colour);
    void openPicker();
    void takePicture(const QByteArray &picture);
    bool moveAmongLayers(QObject *radio, int key);

    void loadWorks();
    LightWork currentWork() const;
    void keepWorks();
    void saveWork();
    void updateWork();
    void chooseWork(const QModelIndex &index);
    void deleteWork(int row);

    std::unique_ptr<Ui::FrameLight> ui;
    QByteArray colourMap; ///< red, green and blue of each matrix position
    QColor currentColour{0, 220, 0};
    DialogColorPicker *picker = nullptr; ///< made at its first use
    NoticeBar *notice = nullptr;         ///< made at its first use
    LightWorksModel *works;
    int selectedRow = -1; ///< the work that was chosen last, -1 for none
    QString worksFolder;
    LightWorksFile worksFile;
    QPointer<DialogDeviceConnect> connection;
    QRandomGenerator random;
    QString defaultName; ///< what the name box holds until something else is put there
    bool bandRunning = false;
};
