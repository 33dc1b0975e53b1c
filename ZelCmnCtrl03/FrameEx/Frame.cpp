#include "FrameEx/Frame.h"

#include "CC4Styles/PaintTools.h"
#include "include/accessible_factory.h"
#include "include/qt_globals.h"

#include <QAccessibleWidget>
#include <QPainter>

#include <utility>

namespace {

QAccessibleInterface *makeInterface(const QString &className, QObject *object)
{
    auto *frame = className == QLatin1String("CFrame") ? qobject_cast<CFrame *>(object) : nullptr;
    return frame != nullptr ? new QAccessibleWidget(frame, QAccessible::Separator) : nullptr;
}

} // namespace

CFrame::CFrame(QWidget *parent) : QFrame(parent)
{
    ZEL_LOG_SCOPE;
    zel::installAccessible(makeInterface, this);
}

CFrame::~CFrame()
{
    ZEL_LOG_SCOPE;
}

void CFrame::SetGradientFrame(QColor color)
{
    ZEL_LOG_SCOPE;
    m_lineColor = std::move(color);
}

// An invalid colour counts as black, as it does in a gradient.
QColor CFrame::gradientFrame() const
{
    return m_lineColor.isValid() ? m_lineColor : QColor(Qt::black);
}

// One colour stands for the gradient of one stop: it fills all of it.
void CFrame::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const int middle = height() / 2;
    PaintTools::fillLine(&painter, QPoint(0, middle), QPoint(width(), middle), gradientFrame());
}
