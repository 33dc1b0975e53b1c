#include "TextBrowserEx/TextBrowserEx.h"

#include "include/qt_globals.h"

#include <QApplication>
#include <QWheelEvent>

CTextBrowserEx::CTextBrowserEx(QWidget *parent) : QTextBrowser(parent)
{
    ZEL_LOG_SCOPE;
    setWindowFlags(windowFlags() & ~Qt::WindowTitleHint);
}

CTextBrowserEx::~CTextBrowserEx()
{
    ZEL_LOG_SCOPE;
    showHand(false);
}

void CTextBrowserEx::setSource(const QUrl &) {}

void CTextBrowserEx::doSetSource(const QUrl &, QTextDocument::ResourceType) {}

void CTextBrowserEx::mouseMoveEvent(QMouseEvent *event)
{
    ZEL_LOG_SCOPE;
    showHand(!anchorAt(zel::localPosition(event)).isEmpty());
}

void CTextBrowserEx::wheelEvent(QWheelEvent *event)
{
    event->setAccepted(event->modifiers() != Qt::ControlModifier);
}

// No move tells of a pointer that goes from a link right out of the text, and the hand is the whole application's.
bool CTextBrowserEx::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::Leave)
        showHand(false);
    return QTextBrowser::viewportEvent(event);
}

// One entry at most of the application's stack of cursors is this browser's.
void CTextBrowserEx::showHand(bool on)
{
    if (on == m_bHandShown)
        return;
    m_bHandShown = on;
    if (on)
        QApplication::setOverrideCursor(Qt::PointingHandCursor);
    else
        QApplication::restoreOverrideCursor();
}
