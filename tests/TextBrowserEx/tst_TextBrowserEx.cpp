#include "helpers/HouseTest.h"

#include "TextBrowserEx/TextBrowserEx.h"

#include <QApplication>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>

namespace {

const QString page = QStringLiteral("<body style=\"font-family: 'DejaVu Sans'; font-size: 20px\">"
                                    "<a href=\"one\">The first link</a> <a href=\"two\">and the second</a>"
                                    "<p>Text.</p><p>Text.</p><p>Text.</p><p>Text.</p></body>");

bool isHandShown()
{
    return QApplication::overrideCursor() != nullptr &&
           QApplication::overrideCursor()->shape() == Qt::PointingHandCursor;
}

/** A point of the viewport over the link; far from all of them for an empty address. */
QPoint placeOf(const CTextBrowserEx &browser, const QString &link)
{
    const QRect rect = browser.viewport()->rect();
    for (int x = rect.right(); x >= 0; --x)
        if (browser.anchorAt(QPoint(x, 12)) == link)
            return QPoint(x, 12);
    return QPoint();
}

void moveTo(const CTextBrowserEx &browser, const QString &link)
{
    const QPointF place = placeOf(browser, link);
    QMouseEvent move(QEvent::MouseMove, place, place, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(browser.viewport(), &move);
}

} // namespace

class tst_TextBrowserEx : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void clickedLinkIsToldOnly();
    void sourceIsNeverSet();
    void oneHandOverLinks();
    void handGoesWithTheBrowser();
    void wheel_data();
    void wheel();
    void hasNoTitleInAWindow();

private:
    static void prepare(CTextBrowserEx &browser)
    {
        browser.resize(500, 60);
        browser.setHtml(page);
        browser.show();
        QVERIFY(QTest::qWaitForWindowExposed(&browser));
    }
};

void tst_TextBrowserEx::clickedLinkIsToldOnly()
{
    CTextBrowserEx browser;
    prepare(browser);
    const QString shown = browser.toPlainText();
    const QSignalSpy clicked(&browser, &QTextBrowser::anchorClicked);
    QTest::keyClick(&browser, Qt::Key_Tab);
    QTest::keyClick(&browser, Qt::Key_Return);
    QCOMPARE(static_cast<int>(clicked.count()), 1);
    QCOMPARE(clicked.last().first().toUrl(), QUrl(QStringLiteral("one")));
    QTest::mouseClick(browser.viewport(), Qt::LeftButton, Qt::NoModifier, placeOf(browser, QStringLiteral("two")));
    QCOMPARE(static_cast<int>(clicked.count()), 2);
    QCOMPARE(clicked.last().first().toUrl(), QUrl(QStringLiteral("two")));
    QCOMPARE(browser.toPlainText(), shown);
    QVERIFY(browser.source().isEmpty());
}

void tst_TextBrowserEx::sourceIsNeverSet()
{
    CTextBrowserEx browser;
    browser.setHtml(page);
    const QString shown = browser.toPlainText();
    const QSignalSpy changed(&browser, &QTextBrowser::sourceChanged);
    browser.setSource(QUrl(QStringLiteral("two")));
    static_cast<QTextBrowser &>(browser).setSource(QUrl(QStringLiteral("two")));
    browser.setProperty("source", QUrl(QStringLiteral("two")));
    QVERIFY(QMetaObject::invokeMethod(&browser, "setSource", Q_ARG(QUrl, QUrl(QStringLiteral("two")))));
    QCOMPARE(browser.toPlainText(), shown);
    QVERIFY(changed.isEmpty() && browser.source().isEmpty());
}

void tst_TextBrowserEx::oneHandOverLinks()
{
    CTextBrowserEx browser;
    prepare(browser);
    for (const auto *link : {"one", "one", "two"}) {
        moveTo(browser, QLatin1String(link));
        QVERIFY(isHandShown());
    }
    moveTo(browser, QString());
    QVERIFY(QApplication::overrideCursor() == nullptr);

    // What others have put there stays.
    QApplication::setOverrideCursor(Qt::BusyCursor);
    moveTo(browser, QString());
    moveTo(browser, QStringLiteral("one"));
    QVERIFY(isHandShown());
    moveTo(browser, QString());
    QCOMPARE(QApplication::overrideCursor()->shape(), Qt::BusyCursor);
    QApplication::restoreOverrideCursor();
}

void tst_TextBrowserEx::handGoesWithTheBrowser()
{
    auto browser = std::make_unique<CTextBrowserEx>();
    prepare(*browser);
    moveTo(*browser, QStringLiteral("two"));
    QVERIFY(isHandShown());
    Pointer::leave(*browser->viewport());
    QVERIFY(QApplication::overrideCursor() == nullptr);
    moveTo(*browser, QStringLiteral("two"));
    QVERIFY(isHandShown());
    browser.reset();
    QVERIFY(QApplication::overrideCursor() == nullptr);
}

void tst_TextBrowserEx::wheel_data()
{
    QTest::addColumn<Qt::KeyboardModifiers>("modifiers");
    QTest::addColumn<bool>("isTaken");
    QTest::newRow("alone") << Qt::KeyboardModifiers() << true;
    QTest::newRow("Ctrl") << Qt::KeyboardModifiers(Qt::ControlModifier) << false;
    QTest::newRow("Shift and Ctrl") << (Qt::ShiftModifier | Qt::ControlModifier) << true;
}

void tst_TextBrowserEx::wheel()
{
    QFETCH(Qt::KeyboardModifiers, modifiers);
    CTextBrowserEx browser;
    prepare(browser);
    QVERIFY(browser.verticalScrollBar()->maximum() > 0);
    QWheelEvent event(QPointF(5, 5), QPointF(5, 5), QPoint(), QPoint(0, -120), Qt::NoButton, modifiers,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(browser.viewport(), &event);
    QTEST(event.isAccepted(), "isTaken");
    QCOMPARE(browser.verticalScrollBar()->value(), 0);
    QTest::keyClick(&browser, Qt::Key_PageDown);
    QTRY_VERIFY(browser.verticalScrollBar()->value() > 0);
}

void tst_TextBrowserEx::hasNoTitleInAWindow()
{
    QWidget parent;
    QVERIFY(!CTextBrowserEx(&parent).windowFlags().testFlag(Qt::WindowTitleHint));
}

HOUSE_TEST_MAIN(tst_TextBrowserEx)
#include "tst_TextBrowserEx.moc"
