#include "helpers/HouseTest.h"

#include "ButtonEx/ButtonEx.h"
#include "CheckBoxEx/CheckBoxEx.h"
#include "LabelEx/LabelEx.h"
#include "MessageBoxEx/MessageBoxEx.h"
#include "MessageBoxEx/TitleBar/CustomIconButtons.h"
#include "MessageBoxEx/TitleBar/TitleBar.h"

#include <QAccessible>
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QLayout>
#include <QMouseEvent>
#include <QScreen>
#include <QSignalSpy>
#include <QThread>
#include <QTimer>
#include <QTranslator>

#include <functional>

Q_DECLARE_METATYPE(std::function<void(CMessageBoxEx &)>)

namespace {

constexpr int defaultFlag = QMessageBox::Default;
constexpr int escapeFlag = QMessageBox::Escape;
constexpr int popupFlag = CMessageBoxEx::popupButton;

const QString inconsistent = QStringLiteral("QMessageBox: Inconsistent button parameters");
const QString invalid = QStringLiteral("QMessageBox: Invalid button specifier");

using Action = std::function<void(CMessageBoxEx &)>;

/** A widget of a size. */
class Content : public QWidget
{
public:
    explicit Content(const QSize &size) : m_size(size) {}
    QSize sizeHint() const override { return m_size; }

private:
    QSize m_size;
};

/** Left to right, as a user sees them. */
QList<CButtonEx *> shownButtons(const CMessageBoxEx &box)
{
    QList<CButtonEx *> buttons;
    for (CButtonEx *button : box.findChildren<CButtonEx *>())
        if (!button->isHidden())
            buttons.append(button);
    return buttons;
}

QString textsOf(const QList<CButtonEx *> &buttons)
{
    QStringList texts;
    for (const CButtonEx *button : buttons)
        texts.append(button->text());
    return texts.join(QLatin1Char(','));
}

QLabel *labelWithText(const CMessageBoxEx &box, const QString &text)
{
    for (QLabel *label : box.findChildren<QLabel *>())
        if (label->text() == text)
            return label;
    return nullptr;
}

void sendMouse(QWidget &widget, QEvent::Type type, const QPoint &position, Qt::MouseButton button,
               Qt::MouseButtons buttons)
{
    QMouseEvent event(type, position, widget.mapToGlobal(position), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

void press(QWidget &widget, const QPoint &position, Qt::MouseButton button = Qt::LeftButton)
{
    sendMouse(widget, QEvent::MouseButtonPress, position, button, button);
}

void drag(QWidget &widget, const QPoint &position)
{
    sendMouse(widget, QEvent::MouseMove, position, Qt::NoButton, Qt::LeftButton);
}

void hover(QWidget &widget, const QPoint &position)
{
    sendMouse(widget, QEvent::MouseMove, position, Qt::NoButton, Qt::NoButton);
}

void release(QWidget &widget, const QPoint &position)
{
    sendMouse(widget, QEvent::MouseButtonRelease, position, Qt::LeftButton, Qt::NoButton);
}

void clickClose(CMessageBoxEx &box)
{
    for (CCustomIconButtons *button : box.findChildren<CCustomIconButtons *>())
        if (button->isVisible())
            QTest::mouseClick(button, Qt::LeftButton);
}

void recordSignals(CMessageBoxEx &box, QStringList &record)
{
    const auto add = [&record](const QString &line) {
        record.append(line);
    };
    const auto named = [add](const char *name) {
        return [add, name] {
            add(QLatin1String(name));
        };
    };
    QObject::connect(
        &box, &CMessageBoxEx::Button_Hit, &box,
        [add](int button) { add(QStringLiteral("hit %1").arg(button, 0, 16)); });
    QObject::connect(
        &box, &CMessageBoxEx::Popup_Notify, &box,
        [add](const QString &text) { add(QStringLiteral("popup %1").arg(text)); });
    QObject::connect(&box, &CMessageBoxEx::signal_CheckBoxStateChanged, &box,
                     [add](int state) { add(QStringLiteral("check %1").arg(state)); });
    QObject::connect(&box, &CMessageBoxEx::UpdateText, &box, named("update"));
    QObject::connect(&box, &CMessageBoxEx::signal_CloseEvent, &box, named("close event"));
    QObject::connect(&box, &CMessageBoxEx::signal_MesssageBoxClosed, &box, named("closed"));
    QObject::connect(&box, &CMessageBoxEx::signal_HelpLinkClicked, &box, named("help"));
    QObject::connect(&box, &CMessageBoxEx::signal_EscapePressed, &box, named("escape"));
}

/** Shows the box, lets `act` play the user, and gives the result; ends the box by done(-1) if `act` did not. */
int show(CMessageBoxEx &box, const Action &act)
{
    QTimer::singleShot(0, &box, [&box, act] {
        act(box);
        if (box.isVisible())
            box.done(-1);
    });
    return box.showDialog();
}

// Qt lets events in already while it shows a box, and goes on with it then.
void actInLoop(CMessageBoxEx &box, const Action &act)
{
    QTimer::singleShot(
        1, &box,
        [&box, act] {
            if (QThread::currentThread()->loopLevel() > 0)
                act(box);
            else
                actInLoop(box, act);
        });
}

} // namespace

class tst_MessageBoxEx : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void specifiers_data();
    void specifiers();
    void standardTexts();
    void buttonsAreFoundByTheirSpecifier();
    void widthOfTexts();
    void sizeOfContent_data();
    void sizeOfContent();
    void newTextsGiveANewSize();
    void longTextsAndLabelsAreNotCut();
    void opensInTheMiddleWithNothingCut();
    void contentGoesBack();
    void helpIconStandsInTheLine();
    void destroyedWhileShown_data();
    void destroyedWhileShown();
    void blankHelp();
    void roads_data();
    void roads();
    void countsDown();
    void withoutButtons();
    void keyboard();
    void cursorTellsTheEdge_data();
    void cursorTellsTheEdge();
    void edgeFollowsThePointer();
    void edgeStopsAtTheLimits();
    void stiffBoxStaysAsItIs();
    void titleBarMovesTheBox();
    void shadowFadesInEveryDirection();
    void hardEdge();
    void boxWithoutParentIsAllPanel();
    void isADialogForAssistiveTechnology();

private:
    std::unique_ptr<CMessageBoxEx> makeTextBox(int button0 = 0, int button1 = 0, int button2 = 0,
                                               const QString &help = QString(), bool noShadow = false)
    {
        return std::make_unique<CMessageBoxEx>(m_window.get(), QStringLiteral("Print"), QStringLiteral("Paper"),
                                               QStringLiteral("No paper"), help, button0, button1, button2, noShadow);
    }
    std::unique_ptr<CMessageBoxEx> makeResizeable()
    {
        auto box = makeTextBox();
        box->setResizeable(true);
        box->move(100, 100);
        box->show();
        return box;
    }

    QTranslator m_texts;
    std::unique_ptr<QWidget> m_window;
};

void tst_MessageBoxEx::initTestCase()
{
    QVERIFY(m_texts.load(QStringLiteral("zelcmnctrl03_en"), QStringLiteral(ZEL_TRANSLATIONS_DIR)));
    QVERIFY(QCoreApplication::installTranslator(&m_texts));
}

void tst_MessageBoxEx::init()
{
    HouseTest::init();
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(50, 50, 600, 500);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_MessageBoxEx::cleanup()
{
    m_window.reset();
    HouseTest::cleanup();
}

void tst_MessageBoxEx::specifiers_data()
{
    using Ints = QList<int>;
    QTest::addColumn<Ints>("given");
    QTest::addColumn<QStringList>("warnings");
    QTest::addColumn<QString>("texts");
    QTest::addColumn<int>("defaultIndex");
    QTest::addColumn<Ints>("results"); // of a click on each; 0 for one that leaves the box open

    const int yes = QMessageBox::Yes;
    const int no = QMessageBox::No;
    const int ok = QMessageBox::Ok;
    const int cancel = QMessageBox::Cancel;
    const int beyondTheLast = 0x8000001;
    const QString gap = QStringLiteral("%1; button %2 defined but not button %3").arg(inconsistent);
    const auto row = [](const char *name, const Ints &given, const char *texts, int defaultIndex, const Ints &results,
                        const QStringList &warnings = {}) {
        QTest::newRow(name) << given << warnings << QString::fromLatin1(texts) << defaultIndex << results;
    };
    row("none", {0, 0, 0}, "OK", 0, {ok});
    row("three", {yes, no, cancel}, "Yes,No,Cancel", 0, {yes, no, cancel});
    row("second is default", {yes, no | defaultFlag, 0}, "Yes,No", 1, {yes, no});
    row("later default wins", {yes | defaultFlag, no | defaultFlag, 0}, "Yes,No", 1, {yes, no});
    row("escape alone", {yes, no | escapeFlag, 0}, "Yes,No", -1, {yes, no});
    row("escape and default", {yes | defaultFlag, no | escapeFlag, 0}, "Yes,No", 0, {yes, no});
    row("without a text", {QMessageBox::Close, 0, 0}, "", 0, {QMessageBox::Close});
    row("save is a popup", {yes, QMessageBox::Save, 0}, "Yes,", 0, {yes, 0});
    row("popup", {yes | popupFlag, no, 0}, ",No", 0, {0, no});
    row("second without first", {0, yes, 0}, "OK", 0, {ok}, {inconsistent});
    row("third without second", {yes, 0, no}, "OK", 0, {ok}, {inconsistent});
    row("negative second", {yes, -1, 0}, "Yes", -1, {yes}, {invalid}); // -1 has all flags
    row("second beyond the last", {yes, beyondTheLast, no}, "Yes", 0, {yes}, {invalid, gap.arg(3).arg(2)});
    row("first invalid, others good", {-1, yes | defaultFlag, no}, "OK", 0, {ok},
        {invalid, gap.arg(2).arg(1), gap.arg(3).arg(2)});
}

void tst_MessageBoxEx::specifiers()
{
    QFETCH(QList<int>, given);
    QFETCH(QStringList, warnings);
    QFETCH(QString, texts);
    QFETCH(int, defaultIndex);
    QFETCH(QList<int>, results);

    for (int index = 0; index < results.size(); ++index) {
        for (const QString &warning : warnings)
            announceWarning(warning);
        const auto box = makeTextBox(given.at(0), given.at(1), given.at(2));
        const QList<CButtonEx *> buttons = shownButtons(*box);
        QCOMPARE(textsOf(buttons), texts);
        for (int i = 0; i < buttons.size(); ++i) {
            QCOMPARE(buttons.at(i)->buttonStyle() == CButtonEx::BSEX_Active, i == defaultIndex);
            QCOMPARE(buttons.at(i)->isDefault(), i == defaultIndex);
        }
        const int stillOpen = -1;
        const int result = show(*box, [index](CMessageBoxEx &shown) {
            const QList<CButtonEx *> all = shownButtons(shown);
            for (int i = 1; i < all.size(); ++i) // right-aligned, in the order of the arguments
                QVERIFY(all.at(i)->x() > all.at(i - 1)->geometry().right());
            const int rest = all.constLast()->parentWidget()->width() - all.constLast()->geometry().right();
            QVERIFY(rest < 30 && all.constFirst()->x() > rest);
            QTest::mouseClick(all.at(index), Qt::LeftButton);
        });
        QCOMPARE(result, results.at(index) != 0 ? results.at(index) : stillOpen);
    }
}

void tst_MessageBoxEx::standardTexts()
{
    const std::pair<int, const char *> standard[] = {
        {QMessageBox::Ok, "OK"},         {QMessageBox::Cancel, "Cancel"},       {QMessageBox::Yes, "Yes"},
        {QMessageBox::No, "No"},         {QMessageBox::Abort, "Abort"},         {QMessageBox::Retry, "Retry"},
        {QMessageBox::Ignore, "Ignore"}, {QMessageBox::YesToAll, "Yes to All"}, {QMessageBox::NoToAll, "No to All"},
    };
    for (const auto &[button, text] : standard)
        QCOMPARE(textsOf(shownButtons(*makeTextBox(button))), QString::fromLatin1(text));
}

void tst_MessageBoxEx::buttonsAreFoundByTheirSpecifier()
{
    const int popup = QMessageBox::Apply | popupFlag;
    const auto box = makeTextBox(QMessageBox::Yes | defaultFlag, popup, QMessageBox::No);
    box->setButtonText(QMessageBox::Yes, QStringLiteral("Print"));
    box->setButtonText(popup, QStringLiteral("Options"));
    box->setButtonText(QMessageBox::Apply, QStringLiteral("without the flag"));
    box->setButtonText(QMessageBox::Cancel, QStringLiteral("no such button"));
    box->setButtonEnabled(QMessageBox::No, false);
    box->setButtonEnabled(QMessageBox::Cancel, false);
    const QList<CButtonEx *> buttons = shownButtons(*box);
    QCOMPARE(textsOf(buttons), QStringLiteral("Print,Options,No"));
    QVERIFY(buttons.at(0)->isEnabled() && buttons.at(1)->isEnabled() && !buttons.at(2)->isEnabled());
}

// Runs in other languages as well, see CMakeLists.txt.
void tst_MessageBoxEx::widthOfTexts()
{
    const QString language = qEnvironmentVariable("ZEL_LANGUAGE");
    const bool isRoomy = language == QLatin1String("el") || language == QLatin1String("hu");
    const int allowance = isRoomy ? 40 : 0;
    for (const int buttons : {1, 2, 3}) {
        const auto box = makeTextBox(QMessageBox::Yes, buttons > 1 ? int(QMessageBox::No) : 0,
                                     buttons > 2 ? int(QMessageBox::Cancel) : 0);
        const QSize expected =
            QSize(buttons < 3 ? 390 : 440, box->layout()->totalSizeHint().height()) + QSize(allowance, allowance);
        QCOMPARE(box->minimumSize(), expected);
        QCOMPARE(box->size(), expected);
        QCOMPARE(box->maximumSize(), QApplication::primaryScreen()->availableSize());
    }
}

void tst_MessageBoxEx::sizeOfContent_data()
{
    QTest::addColumn<QSize>("content");
    QTest::addColumn<QString>("help");
    QTest::addColumn<bool>("noButton");
    QTest::addColumn<QSize>("size");
    const QString noHelp;
    const QString help = QStringLiteral("Help");
    QTest::newRow("as wide as the floor") << QSize(390, 20) << noHelp << false << QSize(390, 75);
    QTest::newRow("one pixel wider") << QSize(391, 31) << noHelp << false << QSize(419, 76);
    QTest::newRow("help") << QSize(100, 200) << help << false << QSize(390, 265);
    QTest::newRow("no button") << QSize(100, 200) << noHelp << true << QSize(390, 210);
    QTest::newRow("help, no button") << QSize(100, 200) << help << true << QSize(390, 230);
}

void tst_MessageBoxEx::sizeOfContent()
{
    QFETCH(QSize, content);
    QFETCH(QString, help);
    QFETCH(bool, noButton);
    QFETCH(QSize, size);
    auto *widget = new Content(content);
    const auto box = help.isNull()
                         ? std::make_unique<CMessageBoxEx>(m_window.get(), QStringLiteral("Print"), widget)
                         : std::make_unique<CMessageBoxEx>(m_window.get(), QStringLiteral("Print"), help, widget);
    if (!noButton && !help.isNull())
        QCOMPARE(box->size(), size);
    if (noButton)
        box->setNoButton(true);
    QCOMPARE(box->minimumSize(), size);
    box->updateTitle(QStringLiteral("nothing to change here"));
    QCOMPARE(box->minimumSize(), size);
    QVERIFY(box->maximumHeight() > size.height());
}

void tst_MessageBoxEx::newTextsGiveANewSize()
{
    const auto box = makeTextBox();
    const QSize before = box->size();
    QString longText;
    for (int i = 0; i < 40; ++i)
        longText += QStringLiteral("many words ");
    box->updateDescription(longText);
    QVERIFY(labelWithText(*box, longText) != nullptr);
    QVERIFY(box->height() > before.height() + 30);
    QCOMPARE(box->minimumSize(), box->maximumSize());
    const int tall = box->height();
    box->updateTitle(longText);
    QVERIFY(box->height() > tall + 30);
    box->updateTitle(QStringLiteral("Paper"));
    box->updateDescription(QStringLiteral("No paper"));
    QCOMPARE(box->size(), before);
}

void tst_MessageBoxEx::longTextsAndLabelsAreNotCut()
{
    const QString label = QStringLiteral("Alle erneut drucken");
    const auto box = makeTextBox(QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel, QStringLiteral("Hilfe"));
    box->updateDescription(QStringLiteral("Kein Papier")); // fixes the size
    for (const int button : {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel})
        box->setButtonText(button, label);
    show(*box, [](CMessageBoxEx &shown) {
        for (const CButtonEx *button : shownButtons(shown)) {
            QVERIFY(button->width() > button->fontMetrics().horizontalAdvance(button->text()));
            QVERIFY(shown.contentsRect().contains(QRect(button->mapTo(&shown, QPoint(0, 0)), button->size())));
        }
        for (const QLabel *text : shown.findChildren<QLabel *>())
            QVERIFY(text->height() >= text->heightForWidth(text->width()));
    });
}

void tst_MessageBoxEx::opensInTheMiddleWithNothingCut()
{
    Content widget(QSize(300, 200));
    CMessageBoxEx box(m_window.get(), QStringLiteral("Print"), QStringLiteral("Help"), &widget, QMessageBox::Ok);
    show(box, [&widget](CMessageBoxEx &shown) {
        const QRect area = QApplication::primaryScreen()->availableGeometry();
        QCOMPARE(shown.pos(),
                 area.topLeft() + QPoint((area.width() - shown.width()) / 2, (area.height() - shown.height()) / 2));
        QVERIFY(widget.height() >= 200);
        QVERIFY(shown.isModal());
    });
}

void tst_MessageBoxEx::contentGoesBack()
{
    const std::unique_ptr<Content> widget = std::make_unique<Content>(QSize(50, 50));
    {
        CMessageBoxEx box(m_window.get(), QStringLiteral("Print"), widget.get());
        QCOMPARE(widget->window(), &box);
        show(box, [](CMessageBoxEx &shown) { shown.close(); });
        QVERIFY(widget->parent() == nullptr);
    }
    QCOMPARE(widget->sizeHint(), QSize(50, 50)); // alive

    // Neither a widget that goes while the box has it, nor none at all.
    auto *going = new Content(QSize(50, 50));
    CMessageBoxEx left(m_window.get(), QStringLiteral("Print"), going);
    QCOMPARE(show(left, [going](CMessageBoxEx &) { delete going; }), -1);
    CMessageBoxEx empty(m_window.get(), QStringLiteral("Print"), static_cast<QWidget *>(nullptr));
    QCOMPARE(show(empty, [](CMessageBoxEx &) {}), -1);
}

// Chinese letters come from another font as a rule, and make a higher line.
void tst_MessageBoxEx::helpIconStandsInTheLine()
{
    for (const QString &help : {QStringLiteral("Help"), QStringLiteral("\u8a73\u7d30")}) {
        const auto box = makeTextBox(0, 0, 0, help);
        box->show();
        const QLabel *link = labelWithText(*box, help);
        QWidgetList icons;
        for (QLabel *label : box->findChildren<QLabel *>())
            if (label->geometry().right() < link->geometry().left() && label->text().isEmpty())
                icons.append(label);
        QVERIFY(!icons.isEmpty());
        const int line = link->fontMetrics().boundingRect(help).height();
        QVERIFY(qAbs(icons.last()->geometry().center().y() - (link->geometry().top() + line / 2)) <= 1);
    }
}

void tst_MessageBoxEx::destroyedWhileShown_data()
{
    const auto when = [](auto signal) -> Action {
        return [signal](CMessageBoxEx &box) {
            connect(&box, signal, &box, [&box] { delete box.parentWidget(); });
            actInLoop(box, [](CMessageBoxEx &shown) { shownButtons(shown).constFirst()->click(); });
        };
    };
    QTest::addColumn<Action>("arrange");
    QTest::newRow("at any time") << Action(
        [](CMessageBoxEx &box) { actInLoop(box, [](CMessageBoxEx &shown) { delete shown.parentWidget(); }); });
    QTest::newRow("by a button") << when(&CMessageBoxEx::Button_Hit);
    QTest::newRow("by a popup button") << when(&CMessageBoxEx::Popup_Notify);
    QTest::newRow("by the count-down") << when(&CMessageBoxEx::UpdateText);
    QTest::newRow("at its end") << when(&QDialog::finished);
}

void tst_MessageBoxEx::destroyedWhileShown()
{
    QFETCH(Action, arrange);
    const QPointer<QWidget> parent(new QWidget);
    auto *box = new CMessageBoxEx(parent, QStringLiteral("Print"), QStringLiteral("Save?"), QString(), QString(),
                                  QMessageBox::Yes | popupFlag, QMessageBox::No);
    box->setAutoClose(0); // the rows without a button that ends the box wait for it
    arrange(*box);
    QCOMPARE(box->showDialog(), int(QDialog::Rejected));
    QVERIFY(parent.isNull());
}

void tst_MessageBoxEx::blankHelp()
{
    const QString blank = QStringLiteral("  ");
    QVERIFY(makeTextBox(0, 0, 0, blank)->findChild<CLabelEx *>() == nullptr);
    const CMessageBoxEx box(m_window.get(), QStringLiteral("Print"), blank, new QWidget, QMessageBox::Ok);
    QVERIFY(!labelWithText(box, blank)->font().underline());
}

void tst_MessageBoxEx::roads_data()
{
    QTest::addColumn<Action>("act");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<int>("result"); // -1: still open

    const auto clickButton = [](int index) {
        return [index](CMessageBoxEx &box) {
            QTest::mouseClick(shownButtons(box).at(index), Qt::LeftButton);
        };
    };
    const auto escape = [](CMessageBoxEx &box) {
        QTest::keyClick(&box, Qt::Key_Escape);
    };
    const auto row = [](const char *name, const Action &act, const QStringList &expected, int result = -1) {
        QTest::newRow(name) << act << expected << result;
    };
    row("button", clickButton(1), {"hit 10000"}, QMessageBox::No);
    row("popup button", clickButton(2), {"hit 2000800", "popup Options"});
    row("close button", clickClose, {"close event", "closed"}, 0);
    row("escape", escape, {"escape"});
    const auto closeWithResult = [](CMessageBoxEx &box) {
        box.setResult(7);
        clickClose(box);
    };
    row("close button, standing result", closeWithResult, {"close event", "closed"}, 7);
    const auto answerEscape = [escape](CMessageBoxEx &box) {
        QObject::connect(&box, &CMessageBoxEx::signal_EscapePressed, &box, &QWidget::close);
        escape(box);
    };
    row("escape, answered", answerEscape, {"escape", "close event"}, 0);
    const auto clickHelp = [](CMessageBoxEx &box) {
        QTest::mouseClick(box.findChild<CLabelEx *>(), Qt::LeftButton);
    };
    row("help link", clickHelp, {"help"});
    const auto checkAndUncheck = [](CMessageBoxEx &box) {
        QVERIFY(!box.checkState());
        box.findChild<CCheckBoxEx *>()->click();
        QVERIFY(box.checkState());
        box.setCheckBoxState(false);
    };
    row("check box", checkAndUncheck, {"check 2", "check 0"});
    row("close()", &QWidget::close, {"close event"}, 0);
    row("slot_close()", &CMessageBoxEx::slot_close, {"closed"});
    const auto clickRight = [](CMessageBoxEx &box) {
        QTest::mouseClick(shownButtons(box).at(0), Qt::RightButton);
        QTest::mouseClick(box.findChild<CLabelEx *>(), Qt::RightButton);
    };
    row("right button of the mouse", clickRight, {});
}

void tst_MessageBoxEx::roads()
{
    QFETCH(Action, act);
    QFETCH(QStringList, expected);
    QFETCH(int, result);
    const int options = QMessageBox::Apply | popupFlag;
    CMessageBoxEx box(m_window.get(), QStringLiteral("Print"), QStringLiteral("Paper"), QStringLiteral("No paper"),
                      QStringLiteral("Help"), true, QStringLiteral("Do not ask again"), QMessageBox::Yes,
                      QMessageBox::No | escapeFlag, options);
    box.setButtonText(options, QStringLiteral("Options"));
    QStringList record;
    recordSignals(box, record);
    QCOMPARE(show(box, act), result);
    QCOMPARE(record, expected);
}

void tst_MessageBoxEx::countsDown()
{
    for (const int seconds : {0, 1}) {
        const auto box = makeTextBox();
        QStringList record;
        recordSignals(*box, record);
        QCOMPARE(box->setAutoClose(seconds), 0);
        QElapsedTimer clock;
        clock.start();
        QCOMPARE(box->showDialog(), int(QDialog::Accepted));
        const QStringList expected =
            seconds == 0 ? QStringList{"close event", "update"} : QStringList{"update", "close event", "update"};
        QCOMPARE(record, expected);
        QVERIFY(clock.elapsed() > 900LL * (seconds + 1));
        VERIFY_HOLDS_FOR(record == expected, 1200); // the timer has ended
    }
}

void tst_MessageBoxEx::withoutButtons()
{
    const auto box = makeTextBox(QMessageBox::Yes);
    CButtonEx *button = shownButtons(*box).at(0);
    const QSignalSpy hits(box.get(), &CMessageBoxEx::Button_Hit);
    const int height = box->height();
    box->setNoButton(true);
    QVERIFY(box->height() < height);
    button->click();
    QCOMPARE(int(hits.count()), 0);
    box->setNoButton(false);
    box->setNoButton(false);
    QCOMPARE(box->height(), height);
    button->click();
    QCOMPARE(int(hits.count()), 1);
}

void tst_MessageBoxEx::keyboard()
{
    const auto box = makeTextBox(QMessageBox::Yes, QMessageBox::No | defaultFlag);
    const int result = show(*box, [](CMessageBoxEx &shown) {
        QTRY_VERIFY(shown.isActiveWindow());
        const QList<CButtonEx *> buttons = shownButtons(shown);
        QCOMPARE(QApplication::focusWidget(), buttons.at(1));
        QTest::keyClick(buttons.at(1), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), buttons.at(0));
        QTest::keyClick(buttons.at(0), Qt::Key_Return);
    });
    QCOMPARE(result, int(QMessageBox::Yes));
}

void tst_MessageBoxEx::cursorTellsTheEdge_data()
{
    QTest::addColumn<QPoint>("fromBottomRight"); // of the box's last pixel
    QTest::addColumn<int>("shape");
    QTest::newRow("right edge, outermost") << QPoint(5, 60) << int(Qt::SizeHorCursor);
    QTest::newRow("right edge, innermost") << QPoint(10, 60) << int(Qt::SizeHorCursor);
    QTest::newRow("inside of it") << QPoint(11, 60) << int(Qt::ArrowCursor);
    QTest::newRow("outside of it") << QPoint(4, 60) << int(Qt::ArrowCursor);
    QTest::newRow("between edge and corner") << QPoint(7, 12) << int(Qt::ArrowCursor);
    QTest::newRow("bottom edge") << QPoint(60, 6) << int(Qt::SizeVerCursor);
    QTest::newRow("above it") << QPoint(60, 7) << int(Qt::ArrowCursor);
    QTest::newRow("corner") << QPoint(7, 6) << int(Qt::SizeFDiagCursor);
}

void tst_MessageBoxEx::cursorTellsTheEdge()
{
    QFETCH(QPoint, fromBottomRight);
    QFETCH(int, shape);
    const auto box = makeResizeable();
    hover(*box, box->rect().bottomRight() - fromBottomRight);
    QCOMPARE(int(box->cursor().shape()), shape);
    // A pointer that jumps to what is inside takes no edge along.
    Pointer::enter(*box->findChild<CTitleBar *>());
    QCOMPARE(int(box->cursor().shape()), int(Qt::ArrowCursor));
}

void tst_MessageBoxEx::edgeFollowsThePointer()
{
    for (const QPoint &fromBottomRight : {QPoint(7, 60), QPoint(60, 6), QPoint(7, 6)}) {
        const auto box = makeResizeable();
        const QSize before = box->size();
        const QPoint start = box->rect().bottomRight() - fromBottomRight;
        const QSize after(fromBottomRight.x() == 7 ? 512 : before.width(),
                          fromBottomRight.y() == 6 ? 462 : before.height());
        hover(*box, start);
        press(*box, start);
        drag(*box, QPoint(500, 450));
        QCOMPARE(box->size(), after);
        release(*box, QPoint(500, 450));
        QCOMPARE(int(box->cursor().shape()), int(Qt::ArrowCursor));
        drag(*box, QPoint(550, 470));
        QCOMPARE(box->size(), after);
    }
}

void tst_MessageBoxEx::edgeStopsAtTheLimits()
{
    const auto box = makeResizeable();
    const QSize smallest = box->minimumSize();
    const QRect screen = box->screen()->availableGeometry();
    const QPoint corner = box->rect().bottomRight() - QPoint(7, 6);
    hover(*box, corner);
    press(*box, corner);
    drag(*box, QPoint(3000, 100));
    QCOMPARE(box->width(), box->maximumWidth());
    drag(*box, QPoint(10, 10));
    QCOMPARE(box->size(), smallest);
    // Within 12 pixels of the end of the work area, and beyond: the box ends there.
    for (const int globalY : {screen.bottom() + 1 - 11, screen.bottom() + 300}) {
        drag(*box, box->mapFromGlobal(QPoint(600, globalY)));
        QCOMPARE(box->geometry().bottom(), screen.bottom());
    }
}

void tst_MessageBoxEx::stiffBoxStaysAsItIs()
{
    const auto box = makeResizeable();
    box->setResizeable(false);
    const QRect before = box->geometry();
    const QPoint edge = box->rect().bottomRight() - QPoint(7, 60);
    hover(*box, edge);
    QCOMPARE(int(box->cursor().shape()), int(Qt::ArrowCursor));
    press(*box, edge);
    drag(*box, edge + QPoint(50, 50));
    QCOMPARE(box->geometry(), before);
}

// Here no window system moves the window: it does so itself.
void tst_MessageBoxEx::titleBarMovesTheBox()
{
    const auto box = makeResizeable();
    const QSignalSpy moved(box.get(), &CMessageBoxEx::MessageBox_Moved);
    auto *bar = box->findChild<CTitleBar *>();
    press(*bar, QPoint(50, 10), Qt::RightButton);
    drag(*bar, QPoint(80, 30));
    QCOMPARE(box->pos(), QPoint(100, 100));

    press(*bar, QPoint(50, 10));
    drag(*bar, QPoint(80, 30));
    QCOMPARE(box->pos(), QPoint(130, 120));
    QVERIFY(moved.count() > 0);
    release(*bar, QPoint(50, 10));
    drag(*bar, QPoint(90, 40));
    QCOMPARE(box->pos(), QPoint(130, 120));

    const QPoint body(50, 60);
    press(*box, body);
    drag(*box, body + QPoint(20, 20));
    release(*box, body);
    QCOMPARE(box->pos(), QPoint(130, 120));
    QCOMPARE(box->size(), box->minimumSize());
}

void tst_MessageBoxEx::shadowFadesInEveryDirection()
{
    const auto box = makeTextBox();
    const QImage image = box->grab().toImage();
    const QRect panel = box->contentsRect().adjusted(0, 0, 2, 2);
    const auto lightness = [&image](const QPoint &point) {
        return image.pixelColor(point).lightness();
    };
    const QPoint right(panel.right(), 100);
    const QPoint bottom(100, panel.bottom());
    for (int step = 1; step < 8; ++step) {
        QVERIFY(lightness(right + QPoint(step, 0)) < lightness(right + QPoint(step + 1, 0)));
        QVERIFY(lightness(bottom + QPoint(0, step)) < lightness(bottom + QPoint(0, step + 1)));
        // Across the corner as well, where separate strokes would leave gaps.
        const QPoint corner = panel.bottomRight() + QPoint(step, step) / 2;
        QVERIFY(lightness(corner) <= lightness(corner + QPoint(1, 1)));
    }
    QVERIFY(lightness(right + QPoint(1, 0)) < 160);
    QVERIFY(lightness(right) > 220);
    QVERIFY(lightness(right + QPoint(9, 0)) > 250);
}

void tst_MessageBoxEx::hardEdge()
{
    const auto box = makeTextBox(0, 0, 0, QString(), true);
    QCOMPARE(box->contentsMargins(), QMargins());
    const QImage image = box->grab().toImage();
    const QRect edge = box->rect();
    const char *const fromOutside[] = {"#ff646464", "#ff646464", "#ffa0a0a0", "#ffacacac", "#ffacacac"};
    for (int step = 0; step < 5; ++step) {
        const QString expected = QLatin1String(fromOutside[step]);
        QCOMPARE(Picture::colorAt(image, edge.right() - step, 100), expected);
        QCOMPARE(Picture::colorAt(image, 100, edge.bottom() - step), expected);
    }
    QVERIFY(image.pixelColor(100, edge.bottom() - 5).lightness() > 220);
}

void tst_MessageBoxEx::boxWithoutParentIsAllPanel()
{
    CMessageBoxEx box(nullptr, QStringLiteral("Print"), QStringLiteral("Paper"));
    QVERIFY(!box.isModal());
    QCOMPARE(box.contentsMargins(), QMargins(-2, 0, -2, -2));
    QCOMPARE(box.width(), 390);
    const QImage image = box.grab().toImage();
    for (const QPoint &corner : {box.rect().bottomLeft(), box.rect().bottomRight()})
        QCOMPARE(Picture::colorAt(image, corner.x(), corner.y()), Picture::colorAt(image, 100, corner.y()));
    QCOMPARE(box.contentsMargins(), QMargins(-2, 0, -2, -2));

    const auto modal = makeTextBox();
    QCOMPARE(modal->contentsMargins(), QMargins(0, 0, 14, 10));
    modal->setModal(true);
    QCOMPARE(modal->contentsMargins(), QMargins(0, 0, 14, 10));
    modal->setModal(false);
    QCOMPARE(modal->contentsMargins(), QMargins(-2, 0, -2, -2));
}

void tst_MessageBoxEx::isADialogForAssistiveTechnology()
{
    const auto box = makeTextBox();
    QAccessibleInterface *announced = QAccessible::queryAccessibleInterface(box.get());
    QCOMPARE(announced->role(), QAccessible::Dialog);
    QCOMPARE(announced->text(QAccessible::Name), QStringLiteral("Print"));
    QCOMPARE(announced->text(QAccessible::Description), QStringLiteral("Paper\nNo paper"));
    box->updateDescription(QStringLiteral("Add paper"));
    QCOMPARE(announced->text(QAccessible::Description), QStringLiteral("Paper\nAdd paper"));
}

HOUSE_TEST_MAIN(tst_MessageBoxEx)
#include "tst_MessageBoxEx.moc"
