#include "Pages.h"

#include "MakerTools.h"

#include <ZelCmnCtrl03/CFrame>
#include <ZelCmnCtrl03/CTextBrowserEx>

#include <QLabel>
#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr int ruleHeight = 11;
constexpr int panelWidth = 220;
constexpr QSize browserSize(320, 130);

/** The colour of a rule; QPalette::NoRole for the one that a frame begins with. */
Maker rule(QPalette::ColorRole role)
{
    return [role](State state, const MakerSettings &settings, QWidget *parent) {
        auto *panel = new QWidget(parent);
        auto *column = new QVBoxLayout(panel);
        column->setContentsMargins(0, 0, 0, 0);
        auto *frame = new CFrame;
        frame->setFixedHeight(ruleHeight);
        if (role != QPalette::NoRole)
            frame->SetGradientFrame(panel->palette().color(role));
        column->addWidget(new QLabel(settings.texts.order.paper));
        column->addWidget(frame);
        column->addWidget(new QLabel(settings.texts.order.delivery));
        panel->setEnabled(state != State::Disabled);
        applyForeignStyle(panel, settings);
        panel->resize(panelWidth, panel->sizeHint().height());
        return panel;
    };
}

QString pageOf(const SampleTexts &texts)
{
    return QStringLiteral("<h3>%1</h3><p>%2</p><p><a href=\"details\">%3</a></p><p>%2</p>")
        .arg(texts.printAll, texts.order.tip, texts.showDetails);
}

QWidget *makeBrowser(State state, const MakerSettings &settings, QWidget *parent)
{
    auto *browser = new CTextBrowserEx(parent);
    browser->setHtml(pageOf(settings.texts));
    if (state == State::Disabled)
        browser->setEnabled(false);
    applyStyles(browser, state, settings);
    browser->resize(browserSize);
    QObject::connect(browser, &QTextBrowser::anchorClicked, browser, [report = settings.report](const QUrl &link) {
        report(QStringLiteral("clicked the link to \"%1\"").arg(link.toString()));
    });
    return browser;
}

const std::vector<Row> ruleRows = {
    {QStringLiteral("CFrame"), rule(QPalette::NoRole)},
    {QStringLiteral("In the colour of marks"), rule(QPalette::Highlight)},
    {QStringLiteral("In the colour of edges"), rule(QPalette::Mid)},
};

const std::vector<Row> browserRows = {
    {QStringLiteral("CTextBrowserEx"), makeBrowser},
};

const std::vector<Column> columns = {
    {QStringLiteral("Normal"), State::Normal},
    {QStringLiteral("Disabled"), State::Disabled},
};

} // namespace

PageDescription framesPage()
{
    return {
        QStringLiteral("frames"),
        QStringLiteral("Frames and text browser"),
        {
            {QStringLiteral("Rules"), QStringLiteral("A CFrame is a line, in its own colour in every state."),
             table(ruleRows, columns)},
            {QStringLiteral("Text browser"), QStringLiteral("One document, for good."), table(browserRows, columns)},
            {QStringLiteral("Working controls"),
             QStringLiteral("A link is told of, and not followed. The wheel does not scroll; keys and scroll bar do."),
             workingControls(browserRows)},
        }};
}

} // namespace gallery
