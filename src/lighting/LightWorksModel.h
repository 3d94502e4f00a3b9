#pragma once

#include "LightWork.h"

#include <QAbstractTableModel>
#include <QList>

/// The table of the light works: preview, name, and the word that deletes. GUI thread only.
class LightWorksModel : public QAbstractTableModel
{
    Q_OBJECT

public:
    enum Column { PreviewColumn, NameColumn, ManageColumn, ColumnCount };
    enum Role {
        PictureRole = Qt::UserRole + 1, ///< of the preview: base64 of a PNG
        MapRole,                        ///< of the preview: the colour map, hexadecimal
    };

    explicit LightWorksModel(QObject *parent = nullptr);

    const QList<LightWork> &works() const { return list; }
    void setWorks(const QList<LightWork> &works);

    void append(const LightWork &work);
    /// Rows that aren't there are ignored.
    void replace(int row, const LightWork &work);
    void remove(int row);

    /// Takes the words of a new language.
    void retranslate();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QList<LightWork> list;
};
