#include "MessageBoxTrials.h"

#include "MakerTools.h"

#include <ZelCmnCtrl03/CButtonEx>
#include <ZelCmnCtrl03/CMessageBoxEx>

#include <QGridLayout>
#include <QLabel>

#include <functional>

namespace gallery {

namespace {

constexpr int columnGap = 16;
constexpr int answerWidth = 760; // the answers change their length and nothing else shall move

using Record = std::function<void(const QString &)>;

// The same signal several times in a row is said once, with their number.
QString inShort(const QStringList &lines)
{
    QStringList parts;
    for (int first = 0, next = 0; first < lines.size(); first = next) {
        while (next < lines.size() && lines.at(next) == lines.at(first))
            ++next;
        const int times = next - first;
        parts.append(times == 1 ? lines.at(first) : QStringLiteral("%1 times %2").arg(times).arg(lines.at(first)));
    }
    return parts.join(QStringLiteral(", "));
}

// One line per signal, in the order in which they fire.
void recordSignals(CMessageBoxEx *box, const Record &record)
{
    const auto named = [record](const char *name) {
        return [record, name] {
            record(QLatin1String(name));
        };
    };
    QObject::connect(
        box, &CMessageBoxEx::Button_Hit, box,
        [record](int button) { record(QStringLiteral("Button_Hit(0x%1)").arg(button, 0, 16)); });
    QObject::connect(
        box, &CMessageBoxEx::Popup_Notify, box,
        [record](const QString &text) { record(QStringLiteral("Popup_Notify(%1)").arg(text)); });
    QObject::connect(box, &CMessageBoxEx::signal_CheckBoxStateChanged, box,
                     [record](int state) { record(QStringLiteral("signal_CheckBoxStateChanged(%1)").arg(state)); });
    QObject::connect(box, &CMessageBoxEx::UpdateText, box, named("UpdateText"));
    QObject::connect(box, &CMessageBoxEx::signal_CloseEvent, box, named("signal_CloseEvent"));
    QObject::connect(box, &CMessageBoxEx::signal_MesssageBoxClosed, box, named("signal_MesssageBoxClosed"));
    QObject::connect(box, &CMessageBoxEx::signal_HelpLinkClicked, box, named("signal_HelpLinkClicked"));
    QObject::connect(box, &CMessageBoxEx::signal_EscapePressed, box, named("signal_EscapePressed"));
}

} // namespace

std::vector<MessageBoxTrials::Choice> MessageBoxTrials::choices()
{
    return {
        {QStringLiteral("Plain"), BoxForm::OneButton},
        {QStringLiteral("Three buttons"), BoxForm::ThreeButtons},
        {QStringLiteral("Help link"), BoxForm::HelpLink},
        {QStringLiteral("Check box"), BoxForm::CheckBox},
        {QStringLiteral("Around a widget"), BoxForm::Content},
        {QStringLiteral("Widget and help"), BoxForm::ContentWithHelp},
        {QStringLiteral("Popup button"), BoxForm::PopupButton},
        {QStringLiteral("Count-down"), BoxForm::CountDown},
        {QStringLiteral("Silent count-down"), BoxForm::SilentCountDown},
        {QStringLiteral("No shadow"), BoxForm::ThreeButtons, BoxEdge::Hard},
        {QStringLiteral("Resizeable"), BoxForm::Resizeable},
        {QStringLiteral("Long texts"), BoxForm::LongTexts},
        {QStringLiteral("Without a parent"), BoxForm::OneButton, BoxEdge::Soft, false},
    };
}

MessageBoxTrials::MessageBoxTrials(const MakerSettings &settings, QWidget *parent)
    : QWidget(parent), m_settings(settings)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(columnGap);
    grid->setColumnMinimumWidth(1, answerWidth);
    for (const Choice &choice : choices())
        addLine(grid, choice);
    applyForeignStyle(this, settings);
    resize(sizeHint());
}

void MessageBoxTrials::addLine(QGridLayout *grid, const Choice &choice)
{
    auto *button = new CButtonEx;
    button->setText(choice.caption);
    auto *answer = new QLabel(QStringLiteral("not shown yet"));
    const int row = grid->rowCount();
    grid->addWidget(button, row, 0);
    grid->addWidget(answer, row, 1);
    connect(button, &QAbstractButton::clicked, this,
            [this, choice, answer = QPointer<QLabel>(answer)] { showBox(choice, answer); });
}

// The page may be gone when the box is over: a box without a parent blocks nothing, and one with a parent goes with it.
void MessageBoxTrials::showBox(const Choice &choice, const QPointer<QLabel> &answer)
{
    const QPointer<CMessageBoxEx> box =
        makeBox(choice.form, choice.edge, m_settings.texts, choice.hasParent ? this : nullptr).release();
    const QPointer<QWidget> content = contentOf(box);
    applyForeignStyle(box, m_settings);
    QStringList signalsInOrder;
    const auto record = [&signalsInOrder, answer](const QString &line) {
        signalsInOrder.append(line);
        if (!answer.isNull())
            answer->setText(inShort(signalsInOrder));
    };
    recordSignals(box, record);
    // Escape alone only reports: it is the application that lets it close the box.
    connect(box.data(), &CMessageBoxEx::signal_EscapePressed, box.data(), &QWidget::close);
    connect(this, &QObject::destroyed, box.data(), &QWidget::close);

    const MakerSettings settings = m_settings;
    const QString result = QStringLiteral("result 0x%1").arg(box->showDialog(), 0, 16);
    delete box;
    delete content;
    record(result);
    settings.report(QStringLiteral("%1: %2").arg(choice.caption, result));
}

} // namespace gallery
