#include "WidgetTable.h"

#include <ZelCmnCtrl03/CButtonEx>
#include <ZelCmnCtrl03/CCheckBoxEx>
#include <ZelCmnCtrl03/CCustomIconButton>
#include <ZelCmnCtrl03/CDSliderEx>
#include <ZelCmnCtrl03/CDropDownEx>
#include <ZelCmnCtrl03/CFrame>
#include <ZelCmnCtrl03/CLabelEx>
#include <ZelCmnCtrl03/CListBoxEx>
#include <ZelCmnCtrl03/CProgressBarEx>
#include <ZelCmnCtrl03/CRadioButtonEx>
#include <ZelCmnCtrl03/CSliderEx>
#include <ZelCmnCtrl03/CTextBoxEx>
#include <ZelCmnCtrl03/CTextBrowserEx>
#include <ZelCmnCtrl03/CTitleButton>
#include <ZelCmnCtrl03/CZoomSlider>

namespace {

const QString group = QStringLiteral("ZelCmnCtrl03");

template <typename Control>
WidgetRow row(const QSize &size, const char *toolTip, const QString &properties = QString())
{
    const QMetaObject &meta = Control::staticMetaObject;
    return {QString::fromLatin1(meta.className()),
            QString::fromLatin1(meta.superClass()->className()),
            group,
            QString::fromUtf8(toolTip),
            size,
            properties,
            [](QWidget *parent) -> QWidget * {
                return new Control(parent);
            }};
}

QString text(const char *content)
{
    return QStringLiteral("<property name=\"text\"><string>%1</string></property>").arg(QLatin1String(content));
}

QString horizontal()
{
    return QStringLiteral("<property name=\"orientation\"><enum>Qt::Horizontal</enum></property>");
}

} // namespace

// Windows of their own have no place on a form: CMenuEx, CMessageBoxEx, CProgressBarDialogEx, CProgressDialogEx and
// CRainbowProgressDialog are left out.
const QVector<WidgetRow> &widgetTable()
{
    static const QVector<WidgetRow> rows = {
        row<CButtonEx>({83, 27}, "Push button with a look, an image, a glow and a pulse", text("Button")),
        row<CCheckBoxEx>({140, 26}, "Check box", text("Check box")),
        row<CRadioButtonEx>({140, 28}, "Radio button", text("Radio button")),
        row<CTextBoxEx>({120, 20}, "Single-line text box with two looks"),
        row<CDropDownEx>({120, 20}, "Drop-down with a slim scroll bar"),
        row<CListBoxEx>({256, 192}, "List box of pictures and texts"),
        row<CLabelEx>({80, 22}, "Label that can be clicked and that photos can be dropped on", text("Label")),
        row<CTextBrowserEx>({256, 192}, "Text browser that shows one document"),
        row<CFrame>({160, 9}, "Horizontal rule"),
        row<CSliderEx>({160, 22}, "Slider that jumps to the click", horizontal()),
        row<CDSliderEx>({160, 22}, "Range slider with two handles"),
        row<CZoomSlider>({200, 30}, "Slider between two image buttons"),
        row<CProgressBarEx>({200, 10}, "Busy indicator"),
        row<CCustomIconButton>({22, 22}, "Small icon button"),
        row<CTitleButton>({17, 17}, "Small button for title bars"),
    };
    return rows;
}

QString WidgetRow::header() const
{
    return QStringLiteral("<ZelCmnCtrl03/%1>").arg(className);
}

QIcon WidgetRow::icon() const
{
    return QIcon(QStringLiteral(":/zelcmnctrl03/designer/%1.png").arg(className));
}

QString WidgetRow::objectName() const
{
    const QString withoutC = className.mid(1);
    return withoutC.left(1).toLower() + withoutC.mid(1);
}

QString WidgetRow::domXml() const
{
    return QStringLiteral(
               "<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">"
               "<property name=\"geometry\"><rect><x>0</x><y>0</y><width>%3</width><height>%4</height></rect>"
               "</property>%5</widget>"
               "<customwidgets><customwidget><class>%1</class><extends>%6</extends></customwidget>"
               "</customwidgets></ui>")
        .arg(className, objectName())
        .arg(size.width())
        .arg(size.height())
        .arg(properties, baseName);
}
