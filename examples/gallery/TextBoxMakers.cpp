#include "TextBoxMakers.h"

#include <ZelCmnCtrl03/CTextBoxEx>

#include <QCoreApplication>
#include <QEnterEvent>
#include <QFocusEvent>
#include <QLineEdit>

namespace gallery {

namespace {

constexpr int boxWidth = 110; // too narrow for the long text

QString textOf(const Specimen &specimen, const SampleTexts &texts)
{
    if (specimen.content == Content::Nothing)
        return QString();
    return specimen.content == Content::LongText ? texts.printAll : texts.photos;
}

void setState(QLineEdit *box, const Specimen &specimen)
{
    box->setReadOnly(specimen.state == State::ReadOnly);
    if (specimen.state == State::Disabled)
        box->setEnabled(false);
}

// A text box shows pointer and focus by what its events have told it, so the flags of a style are not enough.
void sendStateEvents(QLineEdit *box, State state)
{
    if (!box->isEnabled())
        return;
    const QPointF centre = box->rect().center();
    QEnterEvent enter(centre, centre, centre);
    QFocusEvent focusIn(QEvent::FocusIn);
    if (state == State::Hovered)
        QCoreApplication::sendEvent(box, &enter);
    if (state == State::Focused)
        QCoreApplication::sendEvent(box, &focusIn);
}

void finish(QLineEdit *box, const Specimen &specimen, const MakerSettings &settings)
{
    box->setText(textOf(specimen, settings.texts));
    box->setCursorPosition(0); // a long text shows its beginning
    setState(box, specimen);
    applyStyles(box, specimen, settings);
    box->resize(boxWidth, box->sizeHint().height());
    sendStateEvents(box, specimen.state);
    QObject::connect(box, &QLineEdit::textEdited, box,
                     [caption = specimen.column, report = settings.report](const QString &text) {
                         report(QStringLiteral("%1: edited, now \"%2\"").arg(caption, text));
                     });
}

} // namespace

QWidget *makeTextBoxEx(const Specimen &specimen, const MakerSettings &settings, QWidget *parent)
{
    auto *box = new CTextBoxEx(parent);
    box->setLineEditStyle(specimen.textBoxLook.style); // first: it sets the colour too
    box->setLineEditColor(specimen.textBoxLook.color);
    finish(box, specimen, settings);
    const auto tell = [caption = specimen.column, report = settings.report](const QString &what) {
        report(QStringLiteral("%1: %2").arg(caption, what));
    };
    QObject::connect(
        box, &CTextBoxEx::focusIn, box, [tell] { tell(QStringLiteral("has the focus")); });
    QObject::connect(box, &CTextBoxEx::focusOut, box, [tell] { tell(QStringLiteral("lost the focus")); });
    return box;
}

QWidget *makeLineEdit(const Specimen &specimen, const MakerSettings &settings, QWidget *parent)
{
    auto *edit = new QLineEdit(parent);
    finish(edit, specimen, settings);
    return edit;
}

} // namespace gallery
