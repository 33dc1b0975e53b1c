#include "Pages.h"

#include "MakerTools.h"
#include "MessageBoxTrials.h"
#include "Panels.h"

#include <ZelCmnCtrl03/CMessageBoxEx>

namespace gallery {

namespace {

// A box is a window: its specimen is a picture of it, on the ground of the page.
Maker pictureOf(BoxForm form, BoxEdge edge = BoxEdge::Soft, bool hasParent = true)
{
    return [=](State state, const MakerSettings &settings, QWidget *parent) -> QWidget * {
        const std::unique_ptr<CMessageBoxEx> box = makeBox(form, edge, settings.texts, hasParent ? parent : nullptr);
        box->setEnabled(settings.isEnabled && state != State::Disabled);
        applyForeignStyle(box.get(), settings);
        box->resize(box->size().expandedTo(box->sizeHint()));
        auto *picture = new Picture(box->grab(), parent);
        picture->resize(picture->sizeHint());
        return picture;
    };
}

Specimen box(const QString &row, const QString &column, const Maker &maker)
{
    return {row, column, Ground::Page, State::Normal, maker};
}

std::vector<Specimen> boxes(const std::vector<std::pair<QString, BoxForm>> &forms)
{
    std::vector<Specimen> specimens;
    for (const auto &[caption, form] : forms) {
        specimens.push_back(box(QStringLiteral("Soft shadow"), caption, pictureOf(form)));
        specimens.push_back(box(QStringLiteral("Hard edge"), caption, pictureOf(form, BoxEdge::Hard)));
    }
    return specimens;
}

std::vector<Specimen> otherBoxes()
{
    return {
        box(QString(), QStringLiteral("Popup button"), pictureOf(BoxForm::PopupButton)),
        box(QString(), QStringLiteral("Long texts"), pictureOf(BoxForm::LongTexts)),
        box(QString(), QStringLiteral("Without a parent"), pictureOf(BoxForm::CheckBox, BoxEdge::Soft, false)),
    };
}

QWidget *makeTrials(State state, const MakerSettings &settings, QWidget *parent)
{
    Q_UNUSED(state)
    return new MessageBoxTrials(settings, parent);
}

} // namespace

PageDescription messageBoxesPage()
{
    return {
        QStringLiteral("message-boxes"),
        QStringLiteral("Message boxes"),
        {
            {QStringLiteral("Texts"), QStringLiteral("As large as the texts want, and no narrower than 390 pixels."),
             boxes({{QStringLiteral("One button"), BoxForm::OneButton},
                    {QStringLiteral("Three buttons"), BoxForm::ThreeButtons},
                    {QStringLiteral("Help link, check box"), BoxForm::CheckBox}})},
            {QStringLiteral("Around a widget"), QStringLiteral("The widget goes back to the application."),
             boxes({{QStringLiteral("Widget"), BoxForm::Content},
                    {QStringLiteral("Help"), BoxForm::ContentWithHelp},
                    {QStringLiteral("No buttons"), BoxForm::ContentWithoutButtons}})},
            {QStringLiteral("Others"), QStringLiteral("Without a parent a box is not modal and casts no shadow."),
             otherBoxes()},
            {QStringLiteral("Working controls"),
             QStringLiteral("Each button shows its box; the signals of the box follow in the order in which they "
                            "fire. Escape closes these boxes because the gallery answers it."),
             workingControls({{QString(), makeTrials}})},
        }};
}

} // namespace gallery
