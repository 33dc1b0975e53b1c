#pragma once

#include <QCommonStyle>
#include <QPointer>

namespace gallery {

/**
 * Holds a control in a state that it is not in: what the control paints through this style carries the given flags,
 * and of a complex control also the sub-controls that these are about.
 *
 * Everything goes to the control's own style, which must outlive this one. It is no QProxyStyle because that one takes
 * possession of its base, and the house style is shared.
 */
class StillStyle : public QCommonStyle
{
    Q_OBJECT

public:
    /** Belongs to the control, and installs itself there over the style that the control has now. */
    StillStyle(QWidget *control, State forcedState, SubControls forcedSubControls = SC_None);

    void polish(QWidget *widget) override;
    void polish(QApplication *application) override;
    void polish(QPalette &palette) override;
    void unpolish(QWidget *widget) override;
    void unpolish(QApplication *application) override;
    QPalette standardPalette() const override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;
    void drawItemText(QPainter *painter, const QRect &rect, int flags, const QPalette &palette, bool enabled,
                      const QString &text, QPalette::ColorRole textRole = QPalette::NoRole) const override;
    void drawItemPixmap(QPainter *painter, const QRect &rect, int alignment, const QPixmap &pixmap) const override;

    QRect itemTextRect(const QFontMetrics &metrics, const QRect &rect, int flags, bool enabled,
                       const QString &text) const override;
    QRect itemPixmapRect(const QRect &rect, int flags, const QPixmap &pixmap) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget = nullptr) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex *option, SubControl subControl,
                         const QWidget *widget = nullptr) const override;
    SubControl hitTestComplexControl(ComplexControl control, const QStyleOptionComplex *option, const QPoint &position,
                                     const QWidget *widget = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &contentsSize,
                           const QWidget *widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr, const QWidget *widget = nullptr,
                  QStyleHintReturn *returnData = nullptr) const override;
    int layoutSpacing(QSizePolicy::ControlType control1, QSizePolicy::ControlType control2, Qt::Orientation orientation,
                      const QStyleOption *option = nullptr, const QWidget *widget = nullptr) const override;

    QPixmap standardPixmap(StandardPixmap pixmap, const QStyleOption *option = nullptr,
                           const QWidget *widget = nullptr) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption *option = nullptr,
                       const QWidget *widget = nullptr) const override;
    QPixmap generatedIconPixmap(QIcon::Mode iconMode, const QPixmap &pixmap, const QStyleOption *option) const override;

private:
    class ForcedState;

    QStyle *own() const;

    QPointer<QStyle> m_own;
    State m_forcedState;
    SubControls m_forcedSubControls;
    mutable bool m_isDrawing = false;
};

} // namespace gallery
