#include "Pages.h"

#include "MakerTools.h"
#include "MenuEntries.h"

#include <ZelCmnCtrl03/CButtonEx>
#include <ZelCmnCtrl03/CMenuEx>

#include <QApplication>
#include <QEnterEvent>
#include <QIcon>
#include <QPushButton>
#include <QResizeEvent>

namespace gallery {

namespace {

enum class Content
{
    Text,
    LongText,
    ImageAndText,
    Image,
    Nothing,
    PrintMenu,
    PhotosMenu
};

/** Of a CButtonEx. */
struct Look
{
    CButtonEx::CButtonStyles style;
    Content content = Content::Text;
    bool pulses = false;
};

constexpr int imagePixels = 16;
constexpr int glowingImagePixels = 48;
constexpr int glowingHeight = 80;
constexpr int widestButton = 400; // a glowing button takes less, namely what its contents need

bool hasText(Content content)
{
    return content != Content::Image && content != Content::Nothing;
}

bool hasMenu(Content content)
{
    return content == Content::PrintMenu || content == Content::PhotosMenu;
}

bool hasImage(Content content)
{
    return content == Content::ImageAndText || content == Content::Image || hasMenu(content);
}

QString textOf(Content content, const SampleTexts &texts)
{
    if (!hasText(content))
        return QString();
    if (content == Content::LongText)
        return texts.printAll;
    return content == Content::PhotosMenu ? texts.photos : texts.print;
}

QString imageName(const Look &look)
{
    const bool showsPhotos = look.content == Content::PhotosMenu;
    switch (look.style) {
    case CButtonEx::BSEX_Glowing: return showsPhotos ? QStringLiteral("photos-48") : QStringLiteral("printer-48");
    case CButtonEx::BSEX_Transparent:
    case CButtonEx::BSEX_Active:
    case CButtonEx::BSEX_Tray: return showsPhotos ? QStringLiteral("photo-white") : QStringLiteral("print-white");
    default: return showsPhotos ? QStringLiteral("photo") : QStringLiteral("print");
    }
}

void setImage(CButtonEx *button, const Look &look)
{
    const int pixels = look.style == CButtonEx::BSEX_Glowing ? glowingImagePixels : imagePixels;
    button->setPixmap(sampleIcon(imageName(look)).pixmap(QSize(pixels, pixels)));
}

// A default CButtonEx pulses. QPushButton's operation of the same name, which it hides, makes one that stands still.
void setDefault(CButtonEx *button, const Look &look, const MakerSettings &settings)
{
    if (look.pulses && settings.isAnimated)
        button->setDefault(true);
    else
        button->QPushButton::setDefault(true);
}

void setState(QPushButton *button, State state)
{
    button->setDown(state == State::Pressed);
    button->setFlat(state == State::Flat);
    if (state == State::Disabled)
        button->setEnabled(false);
}

void setMenu(CButtonEx *button, const MakerSettings &settings)
{
    auto *menu = new CMenuEx(button); // the button refers to its menu without owning it
    fillMenu(menu, settings.texts);
    if (settings.foreignStyle != nullptr)
        menu->setStyle(settings.foreignStyle);
    button->setMenu(menu);
    QObject::connect(menu, &QMenu::triggered, button, [report = settings.report](const QAction *action) {
        report(QStringLiteral("chose %1").arg(action->text()));
    });
}

// A CButtonEx takes its width from its contents when it is resized, and that waits until it is shown. The cell around
// it has to know now.
void settleSize(CButtonEx *button, const QSize &size)
{
    button->resize(size);
    QResizeEvent resize(button->size(), QSize());
    QCoreApplication::sendEvent(button, &resize);
}

void enter(QWidget *control)
{
    const QPointF centre = control->rect().center();
    QEnterEvent event(centre, centre, centre);
    QCoreApplication::sendEvent(control, &event);
}

QWidget *makeButtonEx(const Look &look, State state, const MakerSettings &settings, QWidget *parent)
{
    auto *button = new CButtonEx(parent);
    button->setButtonStyle(look.style); // first: a menu is taken by some looks only
    button->setText(textOf(look.content, settings.texts));
    if (hasImage(look.content))
        setImage(button, look);
    if (hasMenu(look.content))
        setMenu(button, settings);
    setState(button, state);
    if (state == State::Default || look.pulses)
        setDefault(button, look, settings);
    applyStyles(button, state, settings);

    const bool isGlowing = look.style == CButtonEx::BSEX_Glowing;
    settleSize(button, isGlowing ? QSize(widestButton, glowingHeight) : button->sizeHint());
    if (isGlowing && state == State::Hovered)
        enter(button);
    QObject::connect(button, &CButtonEx::clicked2, button, [report = settings.report](const CButtonEx *sender) {
        report(QStringLiteral("clicked %1").arg(sender->text()));
    });
    return button;
}

QWidget *makePushButton(Content content, State state, const MakerSettings &settings, QWidget *parent)
{
    auto *button = new QPushButton(textOf(content, settings.texts), parent);
    if (hasImage(content))
        button->setIcon(sampleIcon(imageName({CButtonEx::BSEX_Normal, content})));
    setState(button, state);
    button->setDefault(state == State::Default);
    applyStyles(button, state, settings);
    button->resize(button->sizeHint());
    QObject::connect(button, &QPushButton::clicked, button,
                     [button, report = settings.report] { report(QStringLiteral("clicked %1").arg(button->text())); });
    return button;
}

// A hovered glowing button takes its time to glow with full strength.
bool isGlowSettled(State state, const QWidget *control)
{
    const auto *button = static_cast<const CButtonEx *>(control);
    return state != State::Hovered || !button->isEnabled() || button->getGlowAlpha() >= 1.0F;
}

Row buttonRow(const QString &caption, const Look &look, Ground ground = Ground::Page)
{
    return {caption,
            [look](State state, const MakerSettings &settings, QWidget *parent) {
                return makeButtonEx(look, state, settings, parent);
            },
            ground, look.style == CButtonEx::BSEX_Glowing ? isGlowSettled : SettledTest()};
}

Row plainRow(Content content)
{
    return {QStringLiteral("QPushButton"),
            [content](State state, const MakerSettings &settings, QWidget *parent) {
                return makePushButton(content, state, settings, parent);
            }};
}

std::vector<Row> rowsOf(Content content)
{
    const Content glowing = content == Content::Text ? Content::ImageAndText : content;
    return {
        buttonRow(QStringLiteral("Normal"), {CButtonEx::BSEX_Normal, content}),
        buttonRow(QStringLiteral("Active"), {CButtonEx::BSEX_Active, content}),
        buttonRow(QStringLiteral("Tray"), {CButtonEx::BSEX_Tray, content}),
        buttonRow(QStringLiteral("Tertiary"), {CButtonEx::BSEX_Tertiary, content}),
        buttonRow(QStringLiteral("Transparent"), {CButtonEx::BSEX_Transparent, content}, Ground::Tray),
        buttonRow(QStringLiteral("Glowing"), {CButtonEx::BSEX_Glowing, glowing}, Ground::Tray),
        plainRow(content),
    };
}

const std::vector<Column> states = {
    {QStringLiteral("Normal"), State::Normal},     {QStringLiteral("Hovered"), State::Hovered},
    {QStringLiteral("Focused"), State::Focused},   {QStringLiteral("Pressed"), State::Pressed},
    {QStringLiteral("Disabled"), State::Disabled}, {QStringLiteral("Default"), State::Default},
};

std::vector<Specimen> contents()
{
    return joined({
        table(rowsOf(Content::ImageAndText), {{QStringLiteral("Image"), State::Normal}}),
        table(rowsOf(Content::ImageAndText), {{QStringLiteral("Image, pressed"), State::Pressed}}),
        table(rowsOf(Content::Image), {{QStringLiteral("Image, no text"), State::Normal}}),
        table(rowsOf(Content::Text), {{QStringLiteral("Flat"), State::Flat}}),
        table(rowsOf(Content::LongText), {{QStringLiteral("Long text"), State::Normal}}),
        table(rowsOf(Content::Nothing), {{QStringLiteral("Empty text"), State::Normal}}),
    });
}

std::vector<Specimen> workingButtons()
{
    return workingControls({
        buttonRow(QStringLiteral("Normal"), {CButtonEx::BSEX_Normal}),
        buttonRow(QStringLiteral("Normal, default"), {CButtonEx::BSEX_Normal, Content::Text, true}),
        buttonRow(QStringLiteral("Active"), {CButtonEx::BSEX_Active, Content::ImageAndText}),
        buttonRow(QStringLiteral("Tray"), {CButtonEx::BSEX_Tray, Content::ImageAndText}),
        buttonRow(QStringLiteral("Tertiary"), {CButtonEx::BSEX_Tertiary}),
        plainRow(Content::ImageAndText),
    });
}

Row trayRow(const QString &caption, CButtonEx::CButtonStyles style, Content content)
{
    return buttonRow(caption, {style, content}, Ground::Tray);
}

std::vector<Specimen> workingTray()
{
    return workingControls({
        trayRow(QStringLiteral("Glowing, menu"), CButtonEx::BSEX_Glowing, Content::PrintMenu),
        trayRow(QStringLiteral("Glowing, other menu"), CButtonEx::BSEX_Glowing, Content::PhotosMenu),
        trayRow(QStringLiteral("Glowing"), CButtonEx::BSEX_Glowing, Content::ImageAndText),
        trayRow(QStringLiteral("Transparent, menu"), CButtonEx::BSEX_Transparent, Content::PrintMenu),
        trayRow(QStringLiteral("Transparent"), CButtonEx::BSEX_Transparent, Content::ImageAndText),
    });
}

} // namespace

PageDescription buttonsPage()
{
    return {QStringLiteral("buttons"),
            QStringLiteral("Push buttons"),
            {
                {QStringLiteral("States"), QStringLiteral("Every look, held still in each state."),
                 table(rowsOf(Content::Text), states)},
                {QStringLiteral("Contents"), QStringLiteral("The same looks with other texts and with an image."),
                 contents()},
                {QStringLiteral("Working controls"),
                 QStringLiteral("Point, press and tab through these. The status line tells of each click."),
                 workingButtons()},
                {QStringLiteral("Working controls in a tray"),
                 QStringLiteral("Those with a menu: the glowing ones open it as soon as the pointer is on them."),
                 workingTray()},
            }};
}

} // namespace gallery
