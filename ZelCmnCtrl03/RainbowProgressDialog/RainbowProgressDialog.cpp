#include "RainbowProgressDialog/RainbowProgressDialog.h"

#include "ProgressBarEx/AccessibleProgress.h"
#include "ProgressBarEx/ProgressBarEx.h"
#include "ProgressDialogEx/DialogFace.h"
#include "RainbowProgressDialog/RainbowProgressDialog_p.h"
#include "UiGraphics.h"
#include "include/accessible_factory.h"
#include "include/qt_globals.h"

#include <QGridLayout>
#include <QLabel>

namespace {

constexpr int narrowest = 450;
constexpr int barHeight = 20;
constexpr int rowGap = 10;
constexpr QMargins rowMargins(15, 15, 15, 5);
constexpr int cornerRadius = 20;

// The registry is asked for pixels; the sizes are in points.
constexpr int dialogPoints = 8;
constexpr int rowPixels = 12;
constexpr int headingPoints = 13;
constexpr int textPoints = 12;

QFont fontOf(int pixels, int points, bool isBold = false)
{
    QFont font = UIGGetFont(pixels, -1, false);
    font.setPointSize(points);
    font.setBold(isBold);
    return font;
}

QLabel *makeRow(const QString &name, const QFont &font, QWidget *dialog)
{
    auto *label = new QLabel(dialog);
    label->setObjectName(name);
    label->setFont(font);
    label->setWordWrap(true);
    label->setMinimumSize(0, 0);
    label->setContentsMargins(rowMargins);
    label->setAlignment(Qt::AlignCenter);
    QPalette palette;
    palette.setColor(QPalette::WindowText, UIGGetColor(QStringLiteral("UIGCLR_WHITE")));
    label->setPalette(palette);
    return label;
}

QString messageOf(const QWidget *dialog)
{
    QStringList texts;
    const QList<QLabel *> labels = dialog->findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QLabel *label : labels)
        texts.append(label->text());
    texts.removeAll(QString());
    return texts.join(QLatin1Char('\n'));
}

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *dialog = qobject_cast<CRainbowProgressDialog *>(object);
    if (dialog == nullptr)
        return nullptr;
    return new AccessibleProgress(dialog, AccessibleProgress::Kind::Busy, messageOf); // Qt's cache owns it
}

} // namespace

CRainbowProgressDialog::CRainbowProgressDialog(QWidget *parent)
    : QDialog(parent, Qt::Popup), d(new CRainbowProgressDialogPrivate)
{
    ZEL_LOG_SCOPE;
    d->init();
    zel::installAccessible(makeAccessible, this);
    setFont(fontOf(dialogPoints, dialogPoints));
    auto *grid = new QGridLayout(this);
    grid->setObjectName(QStringLiteral("gridLayout"));
    grid->setSpacing(rowGap);
    grid->setContentsMargins(0, 0, 0, 0);
    addRows();
    addBar();
    setMinimumSize(narrowest, 0);
    setModal(true);
    setContentsMargins(0, 0, 0, 0);
}

CRainbowProgressDialog::~CRainbowProgressDialog()
{
    ZEL_LOG_SCOPE;
    delete d;
}

void CRainbowProgressDialog::addRows()
{
    auto *grid = static_cast<QGridLayout *>(layout());
    d->m_lblMessage0 = makeRow(QStringLiteral("m_lblMessage0"), fontOf(rowPixels, headingPoints, true), this);
    d->m_lblMessage1 = makeRow(QStringLiteral("m_lblMessage1"), fontOf(rowPixels, textPoints), this);
    d->m_lblMessage2 = makeRow(QStringLiteral("m_lblMessage2"), fontOf(rowPixels, textPoints), this);
    for (int row = 0; row < CRainbowProgressDialogPrivate::rows; ++row)
        grid->addWidget(d->label(row), row, 0);
}

void CRainbowProgressDialog::addBar()
{
    auto *bar = new CProgressBarEx(this);
    bar->setObjectName(QStringLiteral("progressBar"));
    bar->setMinimumSize(0, barHeight);
    bar->setMaximumSize(QWIDGETSIZE_MAX, barHeight);
    static_cast<QGridLayout *>(layout())->addWidget(bar, CRainbowProgressDialogPrivate::rows, 0);
}

void CRainbowProgressDialog::setText(const QString &msg, int row)
{
    ZEL_LOG_SCOPE;
    QLabel *label = d->label(row);
    if (label == nullptr) {
        ZEL_LOG(zel::LogDetail, zel::CommonControls,
                QStringLiteral("CRainbowProgressDialog::setText(QString msg, int row) - default statement in switch "
                               "case"));
        return;
    }
    label->clear();
    label->setText(msg);
    AccessibleProgress::announceMessage(this);
}

void CRainbowProgressDialog::clear(int row)
{
    ZEL_LOG_SCOPE;
    QLabel *label = d->label(row);
    if (label == nullptr) {
        ZEL_LOG(zel::LogDetail, zel::CommonControls,
                QStringLiteral("CRainbowProgressDialog::clear(int row) - default statement in switch case"));
        return;
    }
    label->clear();
    AccessibleProgress::announceMessage(this);
}

QString CRainbowProgressDialog::text(int row)
{
    ZEL_LOG_SCOPE;
    const QLabel *label = d->label(row);
    if (label != nullptr)
        return label->text();
    ZEL_LOG(zel::LogDetail, zel::CommonControls,
            QStringLiteral("CRainbowProgressDialog::text(int row)  - default statement in switch case"));
    return QString();
}

void CRainbowProgressDialog::setTextAlignment(Qt::Alignment alignment, int row)
{
    QLabel *label = d->label(row);
    if (label != nullptr) {
        label->setAlignment(alignment);
        return;
    }
    ZEL_LOG(zel::LogDetail, zel::CommonControls,
            QStringLiteral("CRainbowProgressDialog::setTextAlignment(Qt::Alignment alignment, int row) - default "
                           "statement in switch case"));
}

void CRainbowProgressDialog::showEvent(QShowEvent *)
{
    for (int row = 0; row < CRainbowProgressDialogPrivate::rows; ++row)
        d->label(row)->setVisible(!d->label(row)->text().isEmpty());
    const QRadialGradient gradient = DialogFace::gradient(rect(), width() / 2);
    fitHeight();
    QPalette palette;
    palette.setBrush(QPalette::Window, gradient);
    setPalette(palette);
    setAutoFillBackground(true);
}

void CRainbowProgressDialog::paintEvent(QPaintEvent *event)
{
    fitHeight();
    setMask(DialogFace::regionOf(getRoundRectPath(rect(), cornerRadius)));
    QWidget::paintEvent(event);
}

void CRainbowProgressDialog::fitHeight()
{
    layout()->activate(); // else the least size from before rows were hidden holds
    // Without a row there is nothing that could wrap, and the layout has no height for a width.
    const int wrapped = layout()->minimumHeightForWidth(width());
    resize(width(), wrapped >= 0 ? wrapped : layout()->minimumSize().height());
}

QPainterPath CRainbowProgressDialog::getRoundRectPath(const QRect &rect, int radius)
{
    ZEL_LOG(zel::LogDetail, zel::CommonControls, QStringLiteral("CRainbowProgressDialog::getRoundRectPath"));
    return DialogFace::roundBottomPath(rect, radius);
}

void CRainbowProgressDialog::d_zel_func_CRainbowProgressDialog(CRainbowProgressDialogPrivate **out)
{
    *out = d;
}
