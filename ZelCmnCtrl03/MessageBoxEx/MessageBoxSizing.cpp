// How large a message box is and where it stands.
#include "MessageBoxEx/MessageBoxEx.h"

#include "Platform/Platform.h"
#include "include/qt_globals.h"

#include <ZelCUtil03/ZelCUtil.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QScreen>
#include <QVBoxLayout>

namespace {

// Greek and Hungarian texts are long.
constexpr const char *roomyLanguages[] = {"el", "hu"};
constexpr QSize roomForLanguage(40, 40);

// Around a widget of the application, in pixels.
constexpr int contentSideRoom = 28;
constexpr int lowestContent = 30;
constexpr int contentRoom = 10;
constexpr int buttonRowRoom = 35;
constexpr int helpRowRoom = 20;

QSize roomForCurrentLanguage()
{
    const QString language = QString::fromUtf16(GetLanguage());
    for (const char *tag : roomyLanguages)
        if (language == QLatin1String(tag))
            return roomForLanguage;
    return QSize(0, 0);
}

QScreen *screenOf(const QWidget *widget)
{
    return widget != nullptr ? widget->screen() : QGuiApplication::primaryScreen();
}

} // namespace

int CMessageBoxEx::widthFloor() const
{
    if (m_numButtons == 3)
        return m_minWidth3;
    return m_numButtons == 2 ? m_minWidth2 : m_minWidth1;
}

// Layouts hear of new texts and hidden widgets by events, the ones inside of frames one event later.
QSize CMessageBoxEx::layoutWish() const
{
    ensurePolished();
    for (QBoxLayout *parts :
         {static_cast<QBoxLayout *>(m_pContentLayout), static_cast<QBoxLayout *>(m_pButtonFrameLayout),
          static_cast<QBoxLayout *>(m_pMainLayout)})
        parts->activate();
    return QDialog::sizeHint();
}

QSize CMessageBoxEx::sizeHint() const
{
    QSize size = layoutWish();
    size.setWidth(qMax(size.width(), widthFloor()));
    size += roomForCurrentLanguage();
    ZEL_LOG(zel::LogDetail, zel::CommonControls,
            QStringLiteral("CMessageBoxEx::sizeHint <%1 x %2>").arg(size.width()).arg(size.height()));
    return size;
}

QSize CMessageBoxEx::sizeHintContent() const
{
    ZEL_LOG_SCOPE;
    const QSize content = m_pContent.isNull() ? QSize() : m_pContent->sizeHint();
    const int floor = widthFloor();
    QSize size(content.width() > floor ? content.width() + contentSideRoom : floor,
               qMax(content.height(), lowestContent) + contentRoom);
    if (!m_bNoButton)
        size.rheight() += buttonRowRoom;
    if (!m_help.isEmpty())
        size.rheight() += helpRowRoom;
    ZEL_LOG(zel::LogDetail, zel::CommonControls,
            QStringLiteral("CMessageBoxEx::sizeHintContent <%1 x %2>").arg(size.width()).arg(size.height()));
    return size;
}

void CMessageBoxEx::applySize()
{
    if (m_pTitleLabel != nullptr)
        setFixedSize(sizeHint());
    else
        setMinimumSize(sizeHintContent());
}

void CMessageBoxEx::setMaxSize()
{
    ZEL_LOG_SCOPE;
    const QSize area = screenOf(parentWidget())->availableGeometry().size();
    setMaximumSize(area);
    ZEL_LOG(zel::LogDetail, zel::CommonControls,
            QStringLiteral("CMessageBoxEx::setMaxSize <%1 x %2>").arg(area.width()).arg(area.height()));
}

// The size hint of a box around a widget leaves out the title bar and the margins, and a label may have become longer
// since: no box opens with something cut off.
void CMessageBoxEx::growToLayout()
{
    const QSize wish = layoutWish().boundedTo(screenOf(parentWidget())->availableSize());
    setMaximumSize(maximumSize().expandedTo(wish));
    // Until it is shown, a box that nobody has resized has a size that Qt made up.
    const QSize own = testAttribute(Qt::WA_Resized) ? size() : minimumSize();
    resize(own.expandedTo(wish));
}

void CMessageBoxEx::moveToCentre()
{
    const QRect area = screenOf(QApplication::activeWindow())->availableGeometry();
    move(area.left() + (area.width() - width()) / 2, area.top() + (area.height() - height()) / 2);
}

void CMessageBoxEx::updateTitle(const QString &title)
{
    ZEL_LOG_SCOPE;
    if (m_pTitleLabel != nullptr)
        m_pTitleLabel->setText(title);
    describeToAssistiveTechnology();
    applySize();
}

void CMessageBoxEx::updateDescription(const QString &description)
{
    ZEL_LOG_SCOPE;
    if (m_pDescriptionLabel != nullptr)
        m_pDescriptionLabel->setText(description);
    describeToAssistiveTechnology();
    applySize();
}

QRect CMessageBoxEx::getTaskbarRect() const
{
    ZEL_LOG_SCOPE;
    return Platform::taskBarRect(*screen());
}

int CMessageBoxEx::isTaskbarAutoHideOn() const
{
    ZEL_LOG_SCOPE;
    return Platform::taskBarHidesItself() ? 1 : 0;
}

void CMessageBoxEx::moveEvent(QMoveEvent *event)
{
    ZEL_LOG_SCOPE;
    Q_UNUSED(event)
    Q_EMIT MessageBox_Moved();
    if (isModal())
        update(); // another cut of the picture behind it
}
