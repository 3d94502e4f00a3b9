// The works of the light page: paintings that are kept as named works in a file.

#include "FocusRing.h"
#include "FrameLight.h"
#include "LightWorksModel.h"
#include "Look.h"
#include "MessageBox.h"
#include "NoticeBar.h"
#include "PictureDelegate.h"
#include "PreviewPng.h"
#include "ui_FrameLight.h"

#include <QHeaderView>

namespace {

constexpr int RowHeight = 80;
constexpr int PreviewWidth = 200;
constexpr int ManageWidth = 60;
constexpr int HeaderHeight = 32;
constexpr int TextMargins = 12; ///< left and right of a text in its cell together
constexpr int SmallestText = 9; ///< pixels

/// Sets a text smaller where a language needs more room for it than the column has.
class FittingDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const int room = option->rect.width() - TextMargins;
        const int needed = QFontMetrics(option->font).horizontalAdvance(option->text);
        if (needed > room)
            option->font.setPixelSize(qMax(SmallestText, look::BodySize * room / needed));
    }
};

/// The keyboard as it was last grabbed by any page.
QImage &grabbedKeyboard()
{
    static QImage image;
    return image;
}

/// In the keyboard's own size on every screen: the file goes from one to the next.
void grabBoard(QWidget *keyboard)
{
    QImage &image = grabbedKeyboard();
    image = QImage(keyboard->size(), QImage::Format_RGB32);
    image.fill(look::Panel);
    keyboard->render(&image, {}, {}, QWidget::DrawChildren);
}

} // namespace

void FrameLight::buildTable()
{
    WorksTable *table = ui->tableView;
    table->setModel(works);
    table->setItemDelegateForColumn(LightWorksModel::PreviewColumn, new PictureDelegate(table));
    table->setItemDelegateForColumn(LightWorksModel::ManageColumn, new FittingDelegate(table));
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setSelectionMode(QAbstractItemView::SingleSelection);
    table->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    table->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    table->setShowGrid(false);
    table->setWordWrap(false);
    table->setTabKeyNavigation(false);
    table->setMouseTracking(true);
    table->verticalHeader()->hide();
    table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    table->verticalHeader()->setDefaultSectionSize(RowHeight);
    QHeaderView *header = table->horizontalHeader();
    header->setFixedHeight(HeaderHeight);
    header->setHighlightSections(false);
    header->setDefaultAlignment(Qt::AlignCenter);
    header->setSectionsClickable(false);
    header->setMinimumSectionSize(ManageWidth);
    header->setSectionResizeMode(QHeaderView::Fixed);
    header->setSectionResizeMode(LightWorksModel::NameColumn, QHeaderView::Stretch);
    header->resizeSection(LightWorksModel::PreviewColumn, PreviewWidth);
    header->resizeSection(LightWorksModel::ManageColumn, ManageWidth);
    FocusRing::follow(table, look::EditRadius);
}

void FrameLight::connectWorks()
{
    connect(ui->tableView, &QTableView::clicked, this, &FrameLight::chooseWork);
    connect(ui->tableView, &QTableView::entered, this, [this](const QModelIndex &index) {
        const bool deletes = index.column() == LightWorksModel::ManageColumn;
        ui->tableView->viewport()->setCursor(deletes ? Qt::PointingHandCursor : Qt::ArrowCursor);
    });
    connect(ui->pushButtonSave, &QPushButton::clicked, this, &FrameLight::saveWork);
    connect(ui->pushButtonUpdate, &QPushButton::clicked, this, &FrameLight::updateWork);
}

void FrameLight::loadWorks()
{
    platform::removeLeftovers(worksFolder, {QStringLiteral("ledwork.json")});
    works->setWorks(worksFile.load());
}

LightWork FrameLight::currentWork() const
{
    return {previewPng(grabbedKeyboard()).toBase64(), ui->lineEditName->text().trimmed(), colourMap.toHex()};
}

/// Says so if it worked; a file that can't be written is a matter of the log.
void FrameLight::keepWorks()
{
    if (!worksFile.save(works->works()))
        return;
    if (!notice)
        notice = new NoticeBar(ui->frameWorks);
    notice->flash(tr("作品已保存"));
}

void FrameLight::saveWork()
{
    grabBoard(ui->frameKeyboard);
    works->append(currentWork());
    ui->tableView->scrollToBottom();
    keepWorks();
}

void FrameLight::updateWork()
{
    grabBoard(ui->frameKeyboard);
    if (selectedRow < 0)
        return;
    works->replace(selectedRow, currentWork());
    keepWorks();
}

void FrameLight::chooseWork(const QModelIndex &index)
{
    selectedRow = index.row();
    ui->tableView->selectionModel()->select(index,
                                            QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    if (index.column() == LightWorksModel::ManageColumn) {
        deleteWork(index.row());
        return;
    }
    const LightWork work = works->works().at(index.row());
    ui->pushButtonUpdate->show();
    ui->lineEditName->setText(work.name);
    ui->lineEditName->setCursorPosition(0); // of a long name its beginning shows
    colourMap = QByteArray::fromHex(work.data);
    showMap();
}

void FrameLight::deleteWork(int row)
{
    const QPointer<FrameLight> self(this);
    const auto answer = MessageBox::question(this, tr("提示"), tr("确认要删除此作品吗？"),
                                             QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (!self || answer != QMessageBox::Yes)
        return;
    works->remove(row);
    ui->tableView->clearSelection();
    selectedRow = -1;
    ui->pushButtonUpdate->hide();
    ui->lineEditName->setText(tr("我的作品%1").arg(works->rowCount()));
    worksFile.save(works->works());
}
