#include "MessageBox.h"

#include "FocusRing.h"
#include "Look.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QLayout>
#include <QPainter>
#include <QPushButton>

namespace {

constexpr int TitleTop = 22;
constexpr int TitleHeight = 28;
constexpr int TextTop = 66;
constexpr int TextHeight = 40;
constexpr int LeastText = 340; ///< width of the text
constexpr int MostText = 480;

const QString BoxStyle = look::sheet(QStringLiteral(
    "QLabel { color: @text; font-size: @body; }"
    "QLabel#labelTitle { font-size: @section; font-weight: 600; }"
    "QPushButton { min-width: 92px; min-height: 34px; border: none; border-radius: 17px; padding: 0px 4px;"
    " background-color: @edit; color: @text; font-size: @body; }"
    "QPushButton:hover { background-color: @controlLine; }"
    "QPushButton:pressed { background-color: #D4D4DA; }"
    "QPushButton:default { background-color: @accent; color: white; }"
    "QPushButton:default:hover { background-color: @accentHover; }"
    "QPushButton:default:pressed { background-color: @accentPressed; }"));

/// Lies over a window, in the window's own shape.
class Veil : public QWidget
{
public:
    explicit Veil(QWidget *window)
        : QWidget(window)
    {
        setGeometry(window->rect());
        show();
        raise();
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(180, 180, 180, 204));
        painter.drawRoundedRect(rect(), look::WindowRadius, look::WindowRadius);
    }
};

} // namespace

MessageBox::MessageBox(QWidget *parent, const QString &title, const QString &text, StandardButtons buttons)
    : QMessageBox(NoIcon, title, text, buttons, parent, Qt::Dialog | Qt::FramelessWindowHint)
    , titleLabel(new QLabel(title, this))
{
    setAttribute(Qt::WA_TranslucentBackground);
    setTextFormat(Qt::PlainText);
    titleLabel->setObjectName(QStringLiteral("labelTitle"));
    titleLabel->setTextFormat(Qt::PlainText);
    look::setStyleOnce(this, BoxStyle);
    layout()->setContentsMargins(look::Space8, TextTop, look::Space24, look::Space24); // the text is indented
    auto *line = findChild<QLabel *>(QStringLiteral("qt_msgbox_label"));
    line->ensurePolished();
    const int needed = line->fontMetrics().horizontalAdvance(text) + look::Space4;
    line->setMinimumSize(qBound(LeastText, needed, MostText), TextHeight); // a text in one line isn't cut
    dressButtons();
}

MessageBox::~MessageBox()
{
    delete veil;
}

QMessageBox::StandardButton MessageBox::question(QWidget *parent, const QString &title, const QString &text,
                                                 StandardButtons buttons, StandardButton defaultButton)
{
    MessageBox box(parent, title, text, buttons);
    box.setDefaultButton(defaultButton);
    return StandardButton(box.exec());
}

/// Qt's own texts for these are there in some of the languages only.
void MessageBox::dressButtons()
{
    const std::pair<StandardButton, QString> texts[]{
        {Yes, tr("是")}, {No, tr("否")}, {Ok, tr("确定")}, {Cancel, tr("取消")}};
    for (const auto &[which, text] : texts) {
        if (QAbstractButton *answer = button(which))
            answer->setText(text);
    }
    if (auto *row = findChild<QDialogButtonBox *>())
        row->layout()->setSpacing(look::Space12);
    const auto answers = buttons();
    for (QAbstractButton *answer : answers) {
        answer->setIcon({});
        answer->setCursor(Qt::PointingHandCursor);
        FocusRing::follow(answer, look::PillRadius);
    }
}

void MessageBox::showEvent(QShowEvent *event)
{
    QMessageBox::showEvent(event);
    const int left = findChild<QLabel *>(QStringLiteral("qt_msgbox_label"))->x();
    titleLabel->setGeometry(left, TitleTop, width() - 2 * left, TitleHeight);
    if (!parentWidget())
        return;
    QWidget *window = parentWidget()->window();
    move(window->mapToGlobal(window->rect().center()) - rect().center());
    if (window->isVisible() && !veil)
        veil = new Veil(window);
}

void MessageBox::hideEvent(QHideEvent *event)
{
    delete veil;
    QMessageBox::hideEvent(event);
}

void MessageBox::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(look::Line, 1));
    painter.setBrush(look::InnerCard);
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), look::PanelRadius,
                            look::PanelRadius);
}
