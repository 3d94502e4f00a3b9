#include "KeyTestPage.h"

#include "DialogDeviceConnect.h"
#include "KeyNameTable.h"
#include "KeyScanCode.h"
#include "Look.h"
#include "ui_KeyTestPage.h"

#include <QKeyEvent>
#include <QScrollBar>

namespace {

constexpr float Bottom = 0.999F; ///< a key at the bottom, or deeper
constexpr int KeysPerRow = 10;
constexpr int NameHeight = 42;
constexpr int NameWidth = 42;
constexpr int LongNameWidth = 80;
constexpr int LongNameLength = 4;

const QString NameStyle = look::sheet(
    QStringLiteral("QLabel{border:2px solid blue; border-radius:@editRadius; width:30px; height:30px;}"));

// The card of the key test has the focus while keys are tested.
const QString PageStyle = look::sheet(QStringLiteral(
    "#cardKeyTest { border: 2px solid white; }"
    "#cardKeyTest:focus { border-color: @focusLine; }"
    "QScrollArea { border: none; border-radius: @keyRadius; background-color: @panel; padding: 4px; }"
    "QAbstractScrollArea::corner, #scrollAreaWidgetContents0, #scrollAreaWidgetContents1"
    " { border: none; background: transparent; }"
    "#labelHint, #scrollAreaWidgetContents0 QLabel, #scrollAreaWidgetContents1 QLabel { font-size: @small; }"
    "QScrollBar:vertical { width: 8px; background: transparent; margin: 0px; }"
    "QScrollBar:horizontal { height: 8px; background: transparent; margin: 0px; }"
    "QScrollBar::handle { min-width: 32px; min-height: 32px; border-radius: 4px; background-color: @scroll; }"
    "QScrollBar::handle:hover { background-color: @tickLine; }"
    "QScrollBar::add-line, QScrollBar::sub-line { width: 0px; height: 0px; }"
    "QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }"));

/// What a key is called: by what it types, or by its place on the keyboard if that can't be read.
QString nameOf(const QKeyEvent &event)
{
    QString name = event.text();
    name.removeIf([](QChar character) { return character.category() == QChar::Other_Control; });
    name = name.trimmed().toUpper();
    if (!name.isEmpty())
        return name;
    const quint16 scan = platform::keyScanCode(event.nativeScanCode());
    return scan ? keys::KeyNameByScan(scan) : QString();
}

} // namespace

KeyTestPage::KeyTestPage(QWidget *parent)
    : MagneticPage(parent)
    , ui(std::make_unique<Ui::KeyTestPage>())
{
    ui->setupUi(this);
    look::setStyleOnce(this, PageStyle);
    ui->scrollAreaWidgetContents0->layout()->setAlignment(Qt::AlignLeft);
    ui->gridLayout_2->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    ui->cardKeyTest->installEventFilter(this);
    hintAtData(false);
    connect(ui->checkBoxKeytest0, &QAbstractButton::clicked, this, &KeyTestPage::switchTravelTest);
    connect(ui->checkBoxKeytest1, &QAbstractButton::clicked, this, &KeyTestPage::switchKeyTest);
    // The newest key stays in sight; the area grows only after the key has come.
    QScrollBar *bar = ui->scrollArea1->verticalScrollBar();
    connect(bar, &QScrollBar::rangeChanged, bar, [bar](int, int maximum) { bar->setValue(maximum); });
}

KeyTestPage::~KeyTestPage() = default;

void KeyTestPage::enterPage()
{
    if (shownFrame < 0)
        showFrame(PressFrames - 1);
}

void KeyTestPage::readDone()
{
    if (std::exchange(switchMissed, false))
        switchTravelTest(ui->checkBoxKeytest0->isChecked());
}

void KeyTestPage::switchTravelTest(bool on)
{
    if (connection) {
        switchMissed = connection->isReadingAll();
        on ? connection->DoStartKeyTest() : connection->DoStopKeyTest();
    }
    hintAtData(on);
    if (on) {
        showDepth();
    } else {
        ui->labelPress->setDepth({});
        showFrame(PressFrames - 1);
    }
}

void KeyTestPage::showSample()
{
    if (!ui->checkBoxKeytest0->isChecked())
        return;
    hintAtData(false);
    showDepth();
}

void KeyTestPage::showDepth()
{
    const float depth = connection ? qBound(0.0F, connection->GetKeyTravel(), Bottom) : 0.0F;
    ui->labelPress->setDepth(depth);
    showFrame(PressFrames - 1 - int(depth * PressFrames));
}

void KeyTestPage::showFrame(int frame)
{
    QPixmap &picture = frames.at(size_t(frame));
    const bool sharp = picture.devicePixelRatio() == ui->labelKeymt->devicePixelRatioF();
    if (frame == shownFrame && sharp)
        return;
    if (picture.isNull() || !sharp)
        picture = look::picture(
            QStringLiteral(":/images/press/press%1.png").arg(frame, 2, 10, QLatin1Char('0')), ui->labelKeymt);
    ui->labelKeymt->setPixmap(picture);
    shownFrame = frame;
}

/// Until the first sample comes the page tells what to do, and why none might come. The hint keeps its room.
void KeyTestPage::hintAtData(bool shown)
{
    const QString text = shown ? tr("按下任意按键。无线连接下没有实时行程数据。") : QString();
    if (ui->labelHint->text() != text)
        ui->labelHint->setText(text);
}

void KeyTestPage::switchKeyTest(bool on)
{
    clearNames(ui->gridLayout_2);
    if (on)
        ui->cardKeyTest->setFocus(); // so that the keys come here and press no button
}

void KeyTestPage::takeKeyPress(const QKeyEvent &event)
{
    if (!ui->checkBoxKeytest1->isChecked())
        return;
    const QString name = nameOf(event);
    if (heldKeys.contains(name))
        return;
    heldKeys.append(name);
    heldNames.insert(event.nativeScanCode(), name);
    showHeldKeys();
    const int count = ui->gridLayout_2->count();
    ui->gridLayout_2->addWidget(nameLabel(name, ui->scrollAreaWidgetContents1), count / KeysPerRow,
                                count % KeysPerRow);
    ui->scrollArea1->verticalScrollBar()->setValue(ui->scrollArea1->verticalScrollBar()->maximum());
}

void KeyTestPage::takeKeyRelease(const QKeyEvent &event)
{
    if (event.isAutoRepeat())
        return; // some systems repeat the release, too
    // With Shift let go first the key is called otherwise now than when it went down.
    const QString downName = heldNames.take(event.nativeScanCode());
    const QString name = nameOf(event);
    heldKeys.removeOne(heldKeys.contains(name) ? name : downName);
    showHeldKeys();
}

/// What is held when another window takes over is released there.
void KeyTestPage::releaseAll()
{
    heldNames.clear();
    if (heldKeys.isEmpty())
        return;
    heldKeys.clear();
    showHeldKeys();
}

void KeyTestPage::showHeldKeys()
{
    QLayout *row = ui->scrollAreaWidgetContents0->layout();
    clearNames(row);
    for (const QString &name : std::as_const(heldKeys))
        row->addWidget(nameLabel(name, ui->scrollAreaWidgetContents0));
}

QLabel *KeyTestPage::nameLabel(const QString &name, QWidget *area)
{
    QLabel *label = spareLabels.isEmpty() ? new QLabel(area) : spareLabels.takeLast();
    if (label->parentWidget() != area)
        label->setParent(area);
    look::setStyleOnce(label, NameStyle);
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignCenter);
    label->setFixedSize(name.size() < LongNameLength ? NameWidth : LongNameWidth, NameHeight);
    label->setText(name);
    label->show();
    return label;
}

/// Takes all names out of a layout and hides them; they serve again for the next keys.
void KeyTestPage::clearNames(QLayout *layout)
{
    while (const std::unique_ptr<QLayoutItem> item{layout->takeAt(0)}) {
        auto *label = qobject_cast<QLabel *>(item->widget());
        if (!label)
            continue;
        label->hide();
        spareLabels.append(label);
    }
}

bool KeyTestPage::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::KeyPress && ui->checkBoxKeytest1->isChecked()) {
        const auto *press = static_cast<QKeyEvent *>(event);
        if (press->key() == Qt::Key_Tab || press->key() == Qt::Key_Backtab) {
            // Tab is a key to be tested, too; together with Ctrl it leads on to the next control.
            if (press->modifiers().testFlag(Qt::ControlModifier))
                focusNextPrevChild(press->key() == Qt::Key_Tab);
            else
                takeKeyPress(*press);
            return true;
        }
    }
    return MagneticPage::eventFilter(watched, event);
}

bool KeyTestPage::event(QEvent *event)
{
    if (event->type() == QEvent::WindowDeactivate)
        releaseAll();
    return MagneticPage::event(event);
}

void KeyTestPage::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) {
        const bool hinting = !ui->labelHint->text().isEmpty();
        ui->retranslateUi(this);
        hintAtData(hinting);
    }
    MagneticPage::changeEvent(event);
}
