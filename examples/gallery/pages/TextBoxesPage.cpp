#include "Pages.h"

#include "MakerTools.h"

#include <ZelCmnCtrl03/CTextBoxEx>

#include <QCoreApplication>
#include <QEnterEvent>
#include <QFocusEvent>
#include <QLineEdit>

namespace gallery {

namespace {

constexpr int boxWidth = 110; // too narrow for the long text

enum class Content
{
    Text,
    LongText,
    Nothing
};

struct Look
{
    CTextBoxEx::CLineEditStyles style;
    CTextBoxEx::CLineEditColor color;
};

constexpr Look transparentBlue = {CTextBoxEx::LineEditTransparent, CTextBoxEx::LineEditBlue};
constexpr Look transparentGray = {CTextBoxEx::LineEditTransparent, CTextBoxEx::LineEditGray};
constexpr Look normalGray = {CTextBoxEx::LineEditNormal, CTextBoxEx::LineEditGray};
constexpr Look normalBlue = {CTextBoxEx::LineEditNormal, CTextBoxEx::LineEditBlue};

QString textOf(Content content, const SampleTexts &texts)
{
    if (content == Content::Nothing)
        return QString();
    return content == Content::LongText ? texts.printAll : texts.photos;
}

void setState(QLineEdit *box, State state)
{
    box->setReadOnly(state == State::ReadOnly);
    if (state == State::Disabled)
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

void finish(QLineEdit *box, Content content, State state, const MakerSettings &settings)
{
    box->setText(textOf(content, settings.texts));
    box->setCursorPosition(0); // a long text shows its beginning
    setState(box, state);
    applyStyles(box, state, settings);
    box->resize(boxWidth, box->sizeHint().height());
    sendStateEvents(box, state);
    QObject::connect(box, &QLineEdit::textEdited, box, [report = settings.report](const QString &text) {
        report(QStringLiteral("edited, now \"%1\"").arg(text));
    });
}

Maker houseBox(const Look &look, Content content)
{
    return [look, content](State state, const MakerSettings &settings, QWidget *parent) {
        auto *box = new CTextBoxEx(parent);
        box->setLineEditStyle(look.style); // first: it sets the colour too
        box->setLineEditColor(look.color);
        finish(box, content, state, settings);
        const auto report = settings.report;
        QObject::connect(
            box, &CTextBoxEx::focusIn, box, [report] { report(QStringLiteral("has the focus")); });
        QObject::connect(
            box, &CTextBoxEx::focusOut, box, [report] { report(QStringLiteral("lost the focus")); });
        return box;
    };
}

Maker plainBox(Content content)
{
    return [content](State state, const MakerSettings &settings, QWidget *parent) {
        auto *edit = new QLineEdit(parent);
        finish(edit, content, state, settings);
        return edit;
    };
}

std::vector<Row> rowsOf(Content content)
{
    return {
        {QStringLiteral("Transparent, blue"), houseBox(transparentBlue, content), Ground::Tray},
        {QStringLiteral("Transparent, gray"), houseBox(transparentGray, content), Ground::Tray},
        {QStringLiteral("QLineEdit in a tray"), plainBox(content), Ground::Tray},
        {QStringLiteral("Normal, gray"), houseBox(normalGray, content)},
        {QStringLiteral("Normal, blue"), houseBox(normalBlue, content)},
        {QStringLiteral("QLineEdit"), plainBox(content)},
    };
}

std::vector<Specimen> states()
{
    const std::vector<Column> columns = {
        {QStringLiteral("Normal"), State::Normal},      {QStringLiteral("Hovered"), State::Hovered},
        {QStringLiteral("Focused"), State::Focused},    {QStringLiteral("Disabled"), State::Disabled},
        {QStringLiteral("Read-only"), State::ReadOnly},
    };
    return joined({
        table(rowsOf(Content::Text), columns),
        table(rowsOf(Content::Nothing), {{QStringLiteral("Empty"), State::Normal}}),
        table(rowsOf(Content::LongText), {{QStringLiteral("Long text"), State::Normal}}),
    });
}

const std::vector<Row> workingRows = {
    {QStringLiteral("Normal, gray"), houseBox(normalGray, Content::Text)},
    {QStringLiteral("Normal, blue"), houseBox(normalBlue, Content::Text)},
};

// With the plain QLineEdit, whose white panel without a frame cannot be seen on the page.
const std::vector<Row> trayRows = {
    {QStringLiteral("Transparent, blue"), houseBox(transparentBlue, Content::Text), Ground::Tray},
    {QStringLiteral("Transparent, gray"), houseBox(transparentGray, Content::Text), Ground::Tray},
    {QStringLiteral("QLineEdit"), plainBox(Content::Text), Ground::Tray},
};

} // namespace

PageDescription textBoxesPage()
{
    return {
        QStringLiteral("text-boxes"),
        QStringLiteral("Text boxes"),
        {
            {QStringLiteral("States"),
             QStringLiteral("Both looks in both text colours, held still. Read-only, a normal box is bare text. A "
                            "QLineEdit has no frame."),
             states()},
            {QStringLiteral("Working controls"),
             QStringLiteral("The status line tells of focus and edits. In an inactive window all text is gray."),
             workingControls(workingRows)},
            {QStringLiteral("Working controls in a tray"),
             QStringLiteral("The transparent look is brighter under the pointer, and brighter still with the focus."),
             workingControls(trayRows)},
        }};
}

} // namespace gallery
