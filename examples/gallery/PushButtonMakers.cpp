#include "PushButtonMakers.h"

#include "MenuMakers.h"

#include <ZelCmnCtrl03/CButtonEx>
#include <ZelCmnCtrl03/CMenuEx>

#include <QApplication>
#include <QEnterEvent>
#include <QIcon>
#include <QPushButton>
#include <QResizeEvent>

namespace gallery {

namespace {

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

QString textOf(const Specimen &specimen, const SampleTexts &texts)
{
    if (!hasText(specimen.content))
        return QString();
    if (specimen.content == Content::LongText)
        return texts.printAll;
    return specimen.content == Content::PhotosMenu ? texts.photos : texts.print;
}

QString imageName(const Specimen &specimen)
{
    const bool showsPhotos = specimen.content == Content::PhotosMenu;
    switch (specimen.look) {
    case CButtonEx::BSEX_Glowing: return showsPhotos ? QStringLiteral("photos-48") : QStringLiteral("printer-48");
    case CButtonEx::BSEX_Transparent:
    case CButtonEx::BSEX_Active:
    case CButtonEx::BSEX_Tray: return showsPhotos ? QStringLiteral("photo-white") : QStringLiteral("print-white");
    default: return showsPhotos ? QStringLiteral("photo") : QStringLiteral("print");
    }
}

void setImage(CButtonEx *button, const Specimen &specimen)
{
    const int pixels = specimen.look == CButtonEx::BSEX_Glowing ? glowingImagePixels : imagePixels;
    button->setPixmap(sampleIcon(imageName(specimen)).pixmap(QSize(pixels, pixels)));
}

// A default CButtonEx pulses. QPushButton's operation of the same name, which it hides, makes one that stands still.
void setDefault(CButtonEx *button, const Specimen &specimen, const MakerSettings &settings)
{
    if (specimen.state == State::WorkingDefault && settings.isAnimated)
        button->setDefault(true);
    else
        button->QPushButton::setDefault(true);
}

void setState(QPushButton *button, const Specimen &specimen)
{
    button->setDown(specimen.state == State::Pressed);
    button->setFlat(specimen.state == State::Flat);
    if (specimen.state == State::Disabled)
        button->setEnabled(false);
}

void setMenu(CButtonEx *button, const Specimen &specimen, const MakerSettings &settings)
{
    auto *menu = new CMenuEx(button); // the button refers to its menu without owning it
    fillMenu(menu, settings.texts);
    if (settings.foreignStyle != nullptr)
        menu->setStyle(settings.foreignStyle);
    button->setMenu(menu);
    const QString caption = specimen.column;
    QObject::connect(menu, &QMenu::triggered, button, [caption, report = settings.report](const QAction *action) {
        report(QStringLiteral("%1: chose %2").arg(caption, action->text()));
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

} // namespace

QWidget *makeButtonEx(const Specimen &specimen, const MakerSettings &settings, QWidget *parent)
{
    auto *button = new CButtonEx(parent);
    button->setButtonStyle(specimen.look); // first: a menu is taken by some looks only
    button->setText(textOf(specimen, settings.texts));
    if (hasImage(specimen.content))
        setImage(button, specimen);
    if (hasMenu(specimen.content))
        setMenu(button, specimen, settings);
    setState(button, specimen);
    if (specimen.state == State::Default || specimen.state == State::WorkingDefault)
        setDefault(button, specimen, settings);
    applyStyles(button, specimen, settings);

    const bool isGlowing = specimen.look == CButtonEx::BSEX_Glowing;
    settleSize(button, isGlowing ? QSize(widestButton, glowingHeight) : button->sizeHint());
    if (isGlowing && specimen.state == State::Hovered)
        enter(button);
    QObject::connect(button, &CButtonEx::clicked2, button,
                     [caption = specimen.column, report = settings.report](const CButtonEx *sender) {
                         report(QStringLiteral("%1: clicked %2").arg(caption, sender->text()));
                     });
    return button;
}

QWidget *makePushButton(const Specimen &specimen, const MakerSettings &settings, QWidget *parent)
{
    auto *button = new QPushButton(textOf(specimen, settings.texts), parent);
    if (hasImage(specimen.content))
        button->setIcon(sampleIcon(imageName(specimen)));
    setState(button, specimen);
    button->setDefault(specimen.state == State::Default);
    applyStyles(button, specimen, settings);
    button->resize(button->sizeHint());
    QObject::connect(button, &QPushButton::clicked, button,
                     [button, caption = specimen.column, report = settings.report] {
                         report(QStringLiteral("%1: clicked %2").arg(caption, button->text()));
                     });
    return button;
}

bool isButtonExSettled(const Specimen &specimen, const QWidget *control)
{
    const auto *button = qobject_cast<const CButtonEx *>(control);
    const bool glows = specimen.look == CButtonEx::BSEX_Glowing && specimen.state == State::Hovered;
    return button == nullptr || !glows || !button->isEnabled() || button->getGlowAlpha() >= 1.0F;
}

} // namespace gallery
