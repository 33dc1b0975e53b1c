#include "StillStyle.h"

#include <QApplication>
#include <QStyleOption>
#include <QWidget>

namespace gallery {

/**
 * Adds the flags to an option until the end of the outermost drawing. Options of the parts, which the own style makes
 * in between, stay as it made them.
 *
 * The caller's option is changed and put back, not copied: its type is known to the caller alone, and a copy by the
 * base type would lose all but the base.
 */
class StillStyle::ForcedState
{
public:
    ForcedState(const StillStyle *style, const QStyleOption *option) : m_style(style)
    {
        const bool isWanted = !style->m_isDrawing && option != nullptr && option->state.testFlag(State_Enabled);
        if (!isWanted)
            return;
        m_option = const_cast<QStyleOption *>(option);
        m_savedState = m_option->state;
        m_option->state |= style->m_forcedState;
        m_complex = qstyleoption_cast<QStyleOptionComplex *>(m_option);
        if (m_complex != nullptr) {
            m_savedSubControls = m_complex->activeSubControls;
            m_complex->activeSubControls |= style->m_forcedSubControls;
        }
        style->m_isDrawing = true;
    }

    ~ForcedState()
    {
        if (m_option == nullptr)
            return;
        m_option->state = m_savedState;
        if (m_complex != nullptr)
            m_complex->activeSubControls = m_savedSubControls;
        m_style->m_isDrawing = false;
    }

    Q_DISABLE_COPY(ForcedState)

private:
    const StillStyle *m_style;
    QStyleOption *m_option = nullptr;
    QStyleOptionComplex *m_complex = nullptr;
    State m_savedState;
    SubControls m_savedSubControls;
};

StillStyle::StillStyle(QWidget *control, State forcedState, SubControls forcedSubControls)
    : m_own(control->style()), m_forcedState(forcedState), m_forcedSubControls(forcedSubControls)
{
    setParent(control);
    control->setStyle(this);
}

// While the application goes down its style may be gone before its last controls.
QStyle *StillStyle::own() const
{
    return m_own.isNull() ? QApplication::style() : m_own.data();
}

void StillStyle::polish(QWidget *widget)
{
    own()->polish(widget);
}

void StillStyle::polish(QApplication *application)
{
    own()->polish(application);
}

void StillStyle::polish(QPalette &palette)
{
    own()->polish(palette);
}

void StillStyle::unpolish(QWidget *widget)
{
    own()->unpolish(widget);
}

void StillStyle::unpolish(QApplication *application)
{
    own()->unpolish(application);
}

QPalette StillStyle::standardPalette() const
{
    return own()->standardPalette();
}

void StillStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                               const QWidget *widget) const
{
    const ForcedState forced(this, option);
    own()->drawPrimitive(element, option, painter, widget);
}

void StillStyle::drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                             const QWidget *widget) const
{
    const ForcedState forced(this, option);
    own()->drawControl(element, option, painter, widget);
}

void StillStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                    const QWidget *widget) const
{
    const ForcedState forced(this, option);
    own()->drawComplexControl(control, option, painter, widget);
}

void StillStyle::drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette, bool enabled,
                              const QString &text, QPalette::ColorRole textRole) const
{
    own()->drawItemText(painter, rect, flags, palette, enabled, text, textRole);
}

void StillStyle::drawItemPixmap(QPainter *painter, const QRect &rect, int alignment, const QPixmap &pixmap) const
{
    own()->drawItemPixmap(painter, rect, alignment, pixmap);
}

QRect StillStyle::itemTextRect(const QFontMetrics &metrics, const QRect &rect, int flags, bool enabled,
                               const QString &text) const
{
    return own()->itemTextRect(metrics, rect, flags, enabled, text);
}

QRect StillStyle::itemPixmapRect(const QRect &rect, int flags, const QPixmap &pixmap) const
{
    return own()->itemPixmapRect(rect, flags, pixmap);
}

QRect StillStyle::subElementRect(SubElement element, const QStyleOption *option, const QWidget *widget) const
{
    return own()->subElementRect(element, option, widget);
}

QRect StillStyle::subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl subControl,
                                 const QWidget *widget) const
{
    return own()->subControlRect(control, option, subControl, widget);
}

QStyle::SubControl StillStyle::hitTestComplexControl(ComplexControl control, const QStyleOptionComplex *option,
                                                     const QPoint &position, const QWidget *widget) const
{
    return own()->hitTestComplexControl(control, option, position, widget);
}

QSize StillStyle::sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contentsSize,
                                   const QWidget *widget) const
{
    return own()->sizeFromContents(type, option, contentsSize, widget);
}

int StillStyle::pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const
{
    return own()->pixelMetric(metric, option, widget);
}

int StillStyle::styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                          QStyleHintReturn *returnData) const
{
    return own()->styleHint(hint, option, widget, returnData);
}

int StillStyle::layoutSpacing(QSizePolicy::ControlType control1, QSizePolicy::ControlType control2,
                              Qt::Orientation orientation, const QStyleOption *option, const QWidget *widget) const
{
    return own()->layoutSpacing(control1, control2, orientation, option, widget);
}

QPixmap StillStyle::standardPixmap(StandardPixmap pixmap, const QStyleOption *option, const QWidget *widget) const
{
    return own()->standardPixmap(pixmap, option, widget);
}

QIcon StillStyle::standardIcon(StandardPixmap icon, const QStyleOption *option, const QWidget *widget) const
{
    return own()->standardIcon(icon, option, widget);
}

QPixmap StillStyle::generatedIconPixmap(QIcon::Mode iconMode, const QPixmap &pixmap, const QStyleOption *option) const
{
    return own()->generatedIconPixmap(iconMode, pixmap, option);
}

} // namespace gallery
