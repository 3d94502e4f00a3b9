#include "LightWorksModel.h"

#include "Look.h"

LightWorksModel::LightWorksModel(QObject *parent)
    : QAbstractTableModel(parent)
{
}

void LightWorksModel::setWorks(const QList<LightWork> &works)
{
    beginResetModel();
    list = works;
    endResetModel();
}

void LightWorksModel::append(const LightWork &work)
{
    beginInsertRows({}, int(list.size()), int(list.size()));
    list.append(work);
    endInsertRows();
}

void LightWorksModel::replace(int row, const LightWork &work)
{
    if (row < 0 || row >= list.size())
        return;
    list[row] = work;
    Q_EMIT dataChanged(index(row, 0), index(row, ColumnCount - 1));
}

void LightWorksModel::remove(int row)
{
    if (row < 0 || row >= list.size())
        return;
    beginRemoveRows({}, row, row);
    list.removeAt(row);
    endRemoveRows();
}

void LightWorksModel::retranslate()
{
    Q_EMIT headerDataChanged(Qt::Horizontal, 0, ColumnCount - 1);
    if (!list.isEmpty())
        Q_EMIT dataChanged(index(0, ManageColumn), index(int(list.size()) - 1, ManageColumn));
}

int LightWorksModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(list.size());
}

int LightWorksModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant LightWorksModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const LightWork &work = list.at(index.row());
    switch (index.column()) {
    case PreviewColumn:
        if (role == PictureRole)
            return work.image;
        if (role == MapRole)
            return work.data;
        return role == Qt::AccessibleTextRole ? work.name : QVariant();
    case NameColumn:
        return role == Qt::DisplayRole || role == Qt::ToolTipRole ? work.name : QVariant();
    default:
        if (role == Qt::DisplayRole)
            return tr("删除");
        if (role == Qt::ForegroundRole)
            return look::Accent;
        return role == Qt::TextAlignmentRole ? QVariant(int(Qt::AlignCenter)) : QVariant();
    }
}

QVariant LightWorksModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation == Qt::Horizontal && role == Qt::DisplayRole)
        return tr("预览图,作品名称,管理").split(QLatin1Char(',')).value(section);
    return {};
}
