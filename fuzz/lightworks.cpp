// Any text as the file of light works: what was understood must come back from what is written of it. Their
// previews are drawn.

#include "FuzzInput.h"
#include "FuzzProgram.h"
#include "LightWorksFile.h"
#include "LightWorksModel.h"
#include "PictureDelegate.h"

#include <QPainter>

namespace {

constexpr int CellWidth = 64;
constexpr int CellHeight = 24;

void drawPreviews(const QList<LightWork> &works)
{
    static auto &canvas = *new QImage(CellWidth, CellHeight, QImage::Format_RGB32);
    LightWorksModel model;
    model.setWorks(works);
    const PictureDelegate delegate;
    QStyleOptionViewItem option;
    option.rect = canvas.rect();
    QPainter painter(&canvas);
    for (int row = 0; row < std::min(model.rowCount(), 3); ++row)
        delegate.paint(&painter, option, model.index(row, LightWorksModel::PreviewColumn));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QString path = fuzzprogram::folder() + QStringLiteral("/ledwork.json");
    fuzzprogram::write(path, FuzzInput(data, size).rest());
    const QList<LightWork> works = LightWorksFile(fuzzprogram::folder()).load();
    drawPreviews(works);
    const QByteArray written = LightWorksFile::toJson(works);
    fuzzprogram::write(path, written);
    const QList<LightWork> again = LightWorksFile(fuzzprogram::folder()).load();
    fuzzprogram::require(LightWorksFile::toJson(again) == written);
    return 0;
}
