#include "Pages.h"

#include "MakerTools.h"
#include "Panels.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStyleOptionFrame>
#include <QStylePainter>
#include <QToolButton>
#include <QToolTip>
#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr int fieldWidth = 100;
constexpr int sliderLength = 100;
constexpr int percent = 40;
const QDate someDay(2026, 3, 14);

using Make = std::function<QWidget *(const SampleTexts &texts, QWidget *parent)>;

QString richTip(const SampleTexts &texts)
{
    return QStringLiteral("<b>%1</b><br>%2").arg(texts.print, texts.order.tip);
}

void reportUse(QWidget *control, const MakerSettings &settings)
{
    const auto report = settings.report;
    if (const auto *button = qobject_cast<QAbstractButton *>(control))
        QObject::connect(button, &QAbstractButton::clicked, control, [report] { report(QStringLiteral("clicked")); });
    if (const auto *slider = qobject_cast<QAbstractSlider *>(control))
        QObject::connect(slider, &QAbstractSlider::valueChanged, control,
                         [report](int value) { report(QStringLiteral("now at %1").arg(value)); });
    if (const auto *box = qobject_cast<QComboBox *>(control))
        QObject::connect(box, &QComboBox::currentTextChanged, control,
                         [report](const QString &text) { report(QStringLiteral("now \"%1\"").arg(text)); });
}

Row standardRow(const QString &caption, const Make &make, QStyle::SubControls pointed = QStyle::SC_None)
{
    return {caption,
            [make, pointed](State state, const MakerSettings &settings, QWidget *parent) {
                QWidget *control = make(settings.texts, parent);
                if (state == State::Disabled)
                    control->setEnabled(false);
                applyStyles(control, state, settings, pointed);
                control->resize(control->sizeHint());
                reportUse(control, settings);
                return control;
            }};
}

QPushButton *makePushButton(const SampleTexts &texts, QWidget *parent)
{
    auto *button = new QPushButton(texts.print, parent);
    button->setToolTip(texts.print);
    return button;
}

Make pushButton(void (*prepare)(QPushButton *button))
{
    return [prepare](const SampleTexts &texts, QWidget *parent) {
        QPushButton *button = makePushButton(texts, parent);
        prepare(button);
        return button;
    };
}

Make checkBox(Qt::CheckState checkState)
{
    return [checkState](const SampleTexts &texts, QWidget *parent) {
        auto *box = new QCheckBox(texts.order.border, parent);
        box->setTristate(checkState == Qt::PartiallyChecked);
        box->setCheckState(checkState);
        box->setToolTip(texts.order.tip);
        return box;
    };
}

Make radioButton(bool isChecked)
{
    return [isChecked](const SampleTexts &texts, QWidget *parent) {
        auto *button = new QRadioButton(texts.order.glossy, parent);
        button->setAutoExclusive(false);
        button->setChecked(isChecked);
        button->setToolTip(richTip(texts));
        return button;
    };
}

Make toolButton(void (*prepare)(QToolButton *button, const SampleTexts &texts))
{
    return [prepare](const SampleTexts &texts, QWidget *parent) {
        auto *button = new QToolButton(parent);
        button->setText(texts.open);
        button->setIcon(sampleIcon(QStringLiteral("photo")));
        button->setToolTip(texts.open);
        prepare(button, texts);
        return button;
    };
}

void addToolMenu(QToolButton *button, const SampleTexts &texts)
{
    auto *menu = new QMenu(button);
    menu->addAction(texts.photos);
    menu->addAction(texts.folder);
    button->setMenu(menu);
    button->setPopupMode(QToolButton::MenuButtonPopup);
}

QLineEdit *makeLineEdit(const QString &text, QWidget *parent)
{
    auto *edit = new QLineEdit(text, parent);
    edit->setFixedWidth(fieldWidth);
    edit->setCursorPosition(0); // a long text shows its beginning
    return edit;
}

Make comboBox(bool isEditable, bool hasIcons = false)
{
    return [isEditable, hasIcons](const SampleTexts &texts, QWidget *parent) {
        auto *box = new QComboBox(parent);
        for (const QString &text : {texts.order.glossy, texts.order.matte, texts.printAll})
            box->addItem(hasIcons ? sampleIcon(QStringLiteral("photo")) : QIcon(), text);
        box->setEditable(isEditable);
        box->setFixedWidth(fieldWidth);
        box->setToolTip(texts.order.paper);
        return box;
    };
}

template <class SpinBox>
Make spinBox(double value, const QString &suffix)
{
    return [value, suffix](const SampleTexts &texts, QWidget *parent) {
        auto *box = new SpinBox(parent);
        box->setSuffix(suffix);
        box->setValue(value);
        box->setFixedWidth(fieldWidth);
        box->setToolTip(texts.order.copies);
        return box;
    };
}

Make dateEdit(bool hasCalendar)
{
    return [hasCalendar](const SampleTexts &, QWidget *parent) {
        auto *edit = new QDateEdit(someDay, parent);
        edit->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
        edit->setCalendarPopup(hasCalendar);
        edit->setFixedWidth(fieldWidth);
        return edit;
    };
}

Make slider(Qt::Orientation orientation, QSlider::TickPosition ticks)
{
    return [orientation, ticks](const SampleTexts &, QWidget *parent) {
        auto *slider = new QSlider(orientation, parent);
        slider->setRange(0, 100);
        slider->setValue(percent);
        slider->setTickPosition(ticks);
        slider->setTickInterval(10);
        if (orientation == Qt::Horizontal)
            slider->setFixedWidth(sliderLength);
        else
            slider->setFixedHeight(sliderLength);
        return slider;
    };
}

Make progressBar(Qt::Orientation orientation, int value)
{
    return [orientation, value](const SampleTexts &, QWidget *parent) {
        auto *bar = new QProgressBar(parent);
        bar->setOrientation(orientation);
        bar->setValue(value);
        if (orientation == Qt::Horizontal)
            bar->setFixedWidth(fieldWidth);
        else
            bar->setFixedHeight(sliderLength);
        return bar;
    };
}

Make groupBox(bool isCheckable, bool isFlat)
{
    return [isCheckable, isFlat](const SampleTexts &texts, QWidget *parent) {
        auto *group = new QGroupBox(texts.order.paper, parent);
        group->setCheckable(isCheckable);
        group->setFlat(isFlat);
        auto *column = new QVBoxLayout(group);
        column->addWidget(new QRadioButton(texts.order.glossy));
        column->addWidget(new QRadioButton(texts.order.matte));
        group->findChild<QRadioButton *>()->setChecked(true);
        return group;
    };
}

/** What Qt shows a tip in, for a picture: its own one stands above all windows and goes by itself. */
class TipLabel : public QLabel
{
public:
    TipLabel(const QString &text, QStyle *foreignStyle) : QLabel(text)
    {
        if (foreignStyle != nullptr)
            setStyle(foreignStyle);
        setForegroundRole(QPalette::ToolTipText);
        setBackgroundRole(QPalette::ToolTipBase);
        setPalette(QToolTip::palette());
        setFont(QToolTip::font());
        setMargin(1 + style()->pixelMetric(QStyle::PM_ToolTipLabelFrameWidth, nullptr, this));
        setIndent(1);
        style()->styleHint(QStyle::SH_ToolTipLabel_Opacity, nullptr, this); // shapes it
        resize(wordWrap() ? QSize(width(), heightForWidth(width())) : sizeHint());
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        QStylePainter painter(this);
        QStyleOptionFrame option;
        option.initFrom(this);
        painter.drawPrimitive(QStyle::PE_PanelTipLabel, option);
        QLabel::paintEvent(event);
    }
};

Row tip(const QString &caption, const std::function<QString(const SampleTexts &)> &textOf)
{
    return {caption,
            [textOf](State, const MakerSettings &settings, QWidget *parent) {
                return new Picture(TipLabel(textOf(settings.texts), settings.foreignStyle).grab(), parent);
            }};
}

const std::vector<Row> tipRows = {
    tip(QStringLiteral("One line"), [](const SampleTexts &texts) { return texts.printAll; }),
    tip(QStringLiteral("Wrapped"), [](const SampleTexts &texts) { return texts.order.tip; }),
    tip(QStringLiteral("Rich text"), richTip),
};

const std::vector<Column> states = {
    {QStringLiteral("Normal"), State::Normal},     {QStringLiteral("Hovered"), State::Hovered},
    {QStringLiteral("Focused"), State::Focused},   {QStringLiteral("Pressed"), State::Pressed},
    {QStringLiteral("Disabled"), State::Disabled}, {QStringLiteral("Working"), State::Working},
};

const std::vector<Row> buttonRows = {
    standardRow(QStringLiteral("QPushButton"), makePushButton),
    standardRow(QStringLiteral("Default"), pushButton([](QPushButton *button) { button->setDefault(true); })),
    standardRow(QStringLiteral("Flat"), pushButton([](QPushButton *button) { button->setFlat(true); })),
    standardRow(QStringLiteral("Checked"), pushButton([](QPushButton *button) {
                    button->setCheckable(true);
                    button->setChecked(true);
                })),
    standardRow(QStringLiteral("With an icon"),
                pushButton([](QPushButton *button) { button->setIcon(sampleIcon(QStringLiteral("print"))); })),
    standardRow(QStringLiteral("QCheckBox"), checkBox(Qt::Unchecked)),
    standardRow(QStringLiteral("QCheckBox, checked"), checkBox(Qt::Checked)),
    standardRow(QStringLiteral("QCheckBox, partially"), checkBox(Qt::PartiallyChecked)),
    standardRow(QStringLiteral("QRadioButton"), radioButton(false)),
    standardRow(QStringLiteral("QRadioButton, checked"), radioButton(true)),
    standardRow(QStringLiteral("QToolButton"), toolButton([](QToolButton *, const SampleTexts &) {}),
                QStyle::SC_ToolButton),
    standardRow(QStringLiteral("With a text"), toolButton([](QToolButton *button, const SampleTexts &) {
                    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
                }),
                QStyle::SC_ToolButton),
    standardRow(QStringLiteral("Raised by the pointer"),
                toolButton([](QToolButton *button, const SampleTexts &) { button->setAutoRaise(true); }),
                QStyle::SC_ToolButton),
    standardRow(QStringLiteral("Checked tool"), toolButton([](QToolButton *button, const SampleTexts &) {
                    button->setCheckable(true);
                    button->setChecked(true);
                }),
                QStyle::SC_ToolButton),
    standardRow(QStringLiteral("With a menu"), toolButton(addToolMenu), QStyle::SC_ToolButtonMenu),
};

const std::vector<Row> fieldRows = {
    standardRow(QStringLiteral("QLineEdit"),
                [](const SampleTexts &texts, QWidget *parent) { return makeLineEdit(texts.order.somebody, parent); }),
    standardRow(QStringLiteral("QLineEdit, long text"),
                [](const SampleTexts &texts, QWidget *parent) { return makeLineEdit(texts.printAll, parent); }),
    standardRow(QStringLiteral("QComboBox"), comboBox(false), QStyle::SC_ComboBoxArrow),
    standardRow(QStringLiteral("QComboBox with icons"), comboBox(false, true), QStyle::SC_ComboBoxArrow),
    standardRow(QStringLiteral("QComboBox, editable"), comboBox(true), QStyle::SC_ComboBoxArrow),
    standardRow(QStringLiteral("QSpinBox, arrow up"), spinBox<QSpinBox>(3, QString()), QStyle::SC_SpinBoxUp),
    standardRow(QStringLiteral("QDoubleSpinBox, arrow down"), spinBox<QDoubleSpinBox>(10.5, QStringLiteral(" cm")),
                QStyle::SC_SpinBoxDown),
    standardRow(QStringLiteral("QDateEdit"), dateEdit(false), QStyle::SC_SpinBoxUp),
    standardRow(QStringLiteral("QDateEdit with calendar"), dateEdit(true), QStyle::SC_ComboBoxArrow),
};

const std::vector<Row> otherRows = {
    standardRow(QStringLiteral("QSlider"), slider(Qt::Horizontal, QSlider::NoTicks), QStyle::SC_SliderHandle),
    standardRow(QStringLiteral("QSlider, ticks above"), slider(Qt::Horizontal, QSlider::TicksAbove),
                QStyle::SC_SliderHandle),
    standardRow(QStringLiteral("QSlider, ticks below"), slider(Qt::Horizontal, QSlider::TicksBelow),
                QStyle::SC_SliderHandle),
    standardRow(QStringLiteral("QSlider, ticks on both sides"), slider(Qt::Horizontal, QSlider::TicksBothSides),
                QStyle::SC_SliderHandle),
    standardRow(QStringLiteral("QSlider, vertical"), slider(Qt::Vertical, QSlider::TicksBothSides),
                QStyle::SC_SliderHandle),
    standardRow(QStringLiteral("QProgressBar"), progressBar(Qt::Horizontal, percent)),
    standardRow(QStringLiteral("QProgressBar, full"), progressBar(Qt::Horizontal, 100)),
    standardRow(QStringLiteral("QProgressBar, vertical"), progressBar(Qt::Vertical, percent)),
    standardRow(QStringLiteral("QGroupBox"), groupBox(false, false)),
    standardRow(QStringLiteral("QGroupBox, checkable"), groupBox(true, false), QStyle::SC_GroupBoxCheckBox),
    standardRow(QStringLiteral("QGroupBox, flat"), groupBox(false, true)),
};

} // namespace

PageDescription standardPage()
{
    return {
        QStringLiteral("standard"),
        QStringLiteral("Standard widgets"),
        {
            {QStringLiteral("Buttons"), QStringLiteral("Qt's own, in the house style. Rest on one for its tool tip."),
             table(buttonRows, states)},
            {QStringLiteral("Fields"), QStringLiteral("Of spin boxes the arrow that is hovered or pressed is named."),
             table(fieldRows, states)},
            {QStringLiteral("Sliders, progress and groups"),
             QStringLiteral("Those in the last column of each table work."), table(otherRows, states)},
            {QStringLiteral("Tool tips"), QStringLiteral("As they open over the controls above."),
             table(tipRows, {{QString(), State::Normal}})},
        }};
}

} // namespace gallery
