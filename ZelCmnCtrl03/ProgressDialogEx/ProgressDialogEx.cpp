#include "ProgressDialogEx/ProgressDialogEx.h"

#include "ProgressBarEx/AccessibleProgress.h"
#include "ProgressDialogEx/DialogFace.h"
#include "UiGraphics.h"
#include "include/accessible_factory.h"
#include "include/qt_globals.h"

#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>

namespace {

constexpr QSize dialogSize(375, 95);
constexpr int barHeight = 25;
constexpr int startValue = 100;
constexpr int cornerRadius = 25;
constexpr int leftTrim = 2;
constexpr int gradientRadius = 200;
constexpr int noBar = -1;

// The registry is asked for pixels; the size is in points.
constexpr int dialogPoints = 8;
constexpr int labelPoints = 12;

QFont fontOf(int points)
{
    QFont font = UIGGetFont(points, -1, false);
    font.setPointSize(points);
    return font;
}

QGridLayout *makeGrid(const char *name)
{
    auto *grid = new QGridLayout;
    grid->setObjectName(QString::fromUtf8(name));
    grid->setSpacing(0);
    grid->setContentsMargins(0, 0, 0, 0);
    return grid;
}

QString messageOf(const QWidget *dialog)
{
    const auto *label = dialog->findChild<QLabel *>(QStringLiteral("m_lblMessage"));
    return label != nullptr ? label->text() : QString();
}

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *dialog = qobject_cast<CProgressDialogEx *>(object);
    if (dialog == nullptr)
        return nullptr;
    return new AccessibleProgress(dialog, AccessibleProgress::Kind::Counting, messageOf); // Qt's cache owns it
}

} // namespace

CProgressDialogEx::CProgressDialogEx(QWidget *parent)
    : QDialog(parent, Qt::Popup), m_pOuterGrid(makeGrid("gridLayout")), m_pInnerGrid(makeGrid("gridLayout1"))
{
    ZEL_LOG_SCOPE;
    zel::installAccessible(makeAccessible, this);
    setFont(fontOf(dialogPoints));
    setLayout(m_pOuterGrid);
    m_pOuterGrid->addLayout(m_pInnerGrid, 0, 0);
    makeLabel();
    makeBar();
    setFixedSize(dialogSize);
    setMask(DialogFace::regionOf(getRoundRectPath(rect().adjusted(leftTrim, 0, 0, 0), cornerRadius)));
    QPalette palette = QApplication::palette();
    palette.setBrush(QPalette::Window, DialogFace::gradient(rect(), gradientRadius));
    setPalette(palette);
    setBackgroundRole(QPalette::Window);
    setModal(true);
}

CProgressDialogEx::~CProgressDialogEx()
{
    ZEL_LOG_SCOPE;
}

void CProgressDialogEx::makeLabel()
{
    m_lblMessage = new QLabel(this);
    m_lblMessage->setObjectName(QStringLiteral("m_lblMessage"));
    m_lblMessage->setFont(fontOf(labelPoints));
    m_lblMessage->setAlignment(Qt::AlignCenter);
    QPalette palette = m_lblMessage->palette();
    palette.setBrush(QPalette::WindowText, UIGGetColor(QStringLiteral("UIGCLR_WHITE")));
    m_lblMessage->setPalette(palette);
    m_pInnerGrid->addWidget(m_lblMessage, 0, 0);
}

void CProgressDialogEx::makeBar()
{
    m_ProgressBar = new QProgressBar(this);
    m_ProgressBar->setObjectName(QStringLiteral("m_ProgressBar"));
    m_ProgressBar->setMinimumSize(0, barHeight);
    m_ProgressBar->setMaximumSize(QWIDGETSIZE_MAX, barHeight);
    m_ProgressBar->setValue(startValue);
    m_ProgressBar->setTextVisible(false);
    m_ProgressBar->setOrientation(Qt::Horizontal);
    // From the dialog's own palette, a gradient for windows, styles would mix a black frame. The groove is the foot of
    // the dialog: a white one would look missing over a white window.
    QPalette palette = QApplication::palette();
    palette.setBrush(QPalette::Window, palette.window()); // set, or it would be inherited
    palette.setBrush(QPalette::Base, palette.button());
    m_ProgressBar->setPalette(palette);
    m_pInnerGrid->addWidget(m_ProgressBar, 1, 0);
}

void CProgressDialogEx::reset()
{
    ZEL_LOG(zel::LogDetail, zel::CommonControls, QStringLiteral("CProgressDialogEx::reset"));
    if (!m_ProgressBar.isNull())
        m_ProgressBar->reset();
}

void CProgressDialogEx::setMinimum(int minimum)
{
    ZEL_LOG(zel::LogDetail, zel::CommonControls, QStringLiteral("CProgressDialogEx::setMinimum"));
    if (!m_ProgressBar.isNull())
        m_ProgressBar->setMinimum(minimum);
}

void CProgressDialogEx::setMaximum(int maximum)
{
    ZEL_LOG(zel::LogDetail, zel::CommonControls, QStringLiteral("CProgressDialogEx::setMaximum"));
    if (!m_ProgressBar.isNull())
        m_ProgressBar->setMaximum(maximum);
}

int CProgressDialogEx::minimum() const
{
    if (m_ProgressBar.isNull()) {
        ZEL_LOG(zel::LogDetail, zel::CommonControls,
                QStringLiteral("CProgressDialogEx::minimum - m_ProgressBar = NULL"));
        return noBar;
    }
    ZEL_LOG(zel::LogDetail, zel::CommonControls, QStringLiteral("CProgressDialogEx::minimum - m_ProgressBar != NULL"));
    return m_ProgressBar->minimum();
}

int CProgressDialogEx::maximum() const
{
    if (m_ProgressBar.isNull()) {
        ZEL_LOG(zel::LogDetail, zel::CommonControls,
                QStringLiteral("CProgressDialogEx::maximum - m_ProgressBar = NULL"));
        return noBar;
    }
    ZEL_LOG(zel::LogDetail, zel::CommonControls, QStringLiteral("CProgressDialogEx::maximum - m_ProgressBar != NULL"));
    return m_ProgressBar->maximum();
}

int CProgressDialogEx::value() const
{
    if (m_ProgressBar.isNull()) {
        ZEL_LOG(zel::LogDetail, zel::CommonControls, QStringLiteral("CProgressDialogEx::value - m_ProgressBar = NULL"));
        return noBar;
    }
    ZEL_LOG(zel::LogDetail, zel::CommonControls, QStringLiteral("CProgressDialogEx::value - m_ProgressBar != NULL"));
    return m_ProgressBar->value();
}

void CProgressDialogEx::setValue(int value)
{
    ZEL_LOG(zel::LogDetail, zel::CommonControls, QStringLiteral("CProgressDialogEx::setValue"));
    if (!m_ProgressBar.isNull())
        m_ProgressBar->setValue(value);
}

void CProgressDialogEx::setRange(int minimum, int maximum)
{
    ZEL_LOG_SCOPE;
    if (!m_ProgressBar.isNull())
        m_ProgressBar->setRange(minimum, maximum);
}

void CProgressDialogEx::setText(const QString &text)
{
    ZEL_LOG_SCOPE;
    if (m_lblMessage.isNull())
        return;
    m_lblMessage->setText(text);
    // No buddy of the label: that would take an ampersand out of the text.
    if (!m_ProgressBar.isNull())
        m_ProgressBar->setAccessibleName(text);
    AccessibleProgress::announceMessage(this);
}

QString CProgressDialogEx::text()
{
    ZEL_LOG_SCOPE;
    return m_lblMessage.isNull() ? QString() : m_lblMessage->text();
}

QPainterPath CProgressDialogEx::getRoundRectPath(const QRect &rect, int radius)
{
    ZEL_LOG_SCOPE;
    return DialogFace::roundBottomPath(rect, radius);
}
