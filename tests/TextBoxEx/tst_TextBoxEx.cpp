#include "helpers/HouseTest.h"

#include "CC4Styles/CC4StyleFactory.h"
#include "TextBoxEx/TextBoxEx.h"

#include <QApplication>
#include <QPointer>

#include <functional>
#include <memory>

namespace {

void sendFocus(QWidget &widget, QEvent::Type type)
{
    QFocusEvent event(type, Qt::TabFocusReason);
    QCoreApplication::sendEvent(&widget, &event);
}

} // namespace

class tst_TextBoxEx : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void startsAsTold();
    void textColours_data();
    void textColours();
    void signalsInOrder();
    void pointerSetsFlagAndRepaints();
    void givesStyleBack();
};

void tst_TextBoxEx::startsAsTold()
{
    const CTextBoxEx box;
    QCOMPARE(box.lineEditStyle(), CTextBoxEx::LineEditTransparent);
    QCOMPARE(box.contextMenuPolicy(), Qt::NoContextMenu);
    QCOMPARE(box.maximumHeight(), 20);
    QCOMPARE(box.font().pixelSize(), 13);
    QVERIFY(qobject_cast<CCommonControlStyle *>(box.style()) != nullptr);
}

void tst_TextBoxEx::textColours_data()
{
    QTest::addColumn<int>("style");
    QTest::addColumn<int>("color"); // -1: not set by hand
    QTest::addColumn<bool>("isBlue");
    QTest::newRow("transparent") << 0 << -1 << true;
    QTest::newRow("normal") << 1 << -1 << false;
    QTest::newRow("other look") << 7 << -1 << false;
    QTest::newRow("transparent gray") << 0 << 1 << false;
    QTest::newRow("normal blue") << 1 << 0 << true;
    QTest::newRow("no colour keeps blue") << 0 << 9 << true;
    QTest::newRow("no colour keeps gray") << 1 << 9 << false;
}

void tst_TextBoxEx::textColours()
{
    QFETCH(int, style);
    QFETCH(int, color);
    QFETCH(bool, isBlue);
    const QColor gray(0x66, 0x66, 0x66);
    CTextBoxEx box;
    const QColor base(1, 2, 3);
    QPalette palette;
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, base);
    box.setPalette(palette);
    box.setLineEditStyle(CTextBoxEx::LineEditNormal); // so that the way back to blue is walked too
    box.setLineEditStyle(static_cast<CTextBoxEx::CLineEditStyles>(style));
    if (color >= 0)
        box.setLineEditColor(static_cast<CTextBoxEx::CLineEditColor>(color));
    QCOMPARE(static_cast<int>(box.lineEditStyle()), style);
    QCOMPARE(box.palette().color(QPalette::Active, QPalette::Text), isBlue ? QColor(0x33, 0x99, 0xCC) : gray);
    QCOMPARE(box.palette().color(QPalette::Inactive, QPalette::Text), gray);
    QCOMPARE(box.palette().color(QPalette::Disabled, QPalette::Text), QColor(0x66, 0x66, 0x66, 100));
    QCOMPARE(box.palette().color(QPalette::Active, QPalette::Base), base);
}

void tst_TextBoxEx::signalsInOrder()
{
    CTextBoxEx box;
    box.setText(QStringLiteral("text"));
    QStringList events;
    const auto record = [&](const char *event) {
        const QString focus = box.isFocussed() ? QStringLiteral(" focussed") : QString();
        const QString selected = box.hasSelectedText() ? QStringLiteral(" selected") : QString();
        events.append(QLatin1String(event) + focus + selected);
    };
    connect(
        &box, &CTextBoxEx::focusIn, this, [&] { record("in"); });
    connect(
        &box, &CTextBoxEx::focusOut, this, [&] { record("out"); });
    connect(&box, &QLineEdit::editingFinished, this, [&] { record("finished"); });
    sendFocus(box, QEvent::FocusIn);
    box.deselect();
    sendFocus(box, QEvent::FocusOut);
    const QStringList wanted{QStringLiteral("in focussed selected"), QStringLiteral("finished"), QStringLiteral("out")};
    QCOMPARE(events, wanted);
}

void tst_TextBoxEx::pointerSetsFlagAndRepaints()
{
    QWidget window;
    CTextBoxEx box(&window);
    PaintCounter counter(&box);
    box.setReadOnly(true);           // no blinking cursor
    box.setFocusPolicy(Qt::NoFocus); // and no focus but the one that is sent
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));
    const auto repaintsAfter = [&](const std::function<void()> &change) {
        QCoreApplication::processEvents();
        counter.paints = 0;
        change();
        return QTest::qWaitFor([&] { return counter.paints > 0; }, 2000);
    };
    QVERIFY(repaintsAfter([&] { Pointer::enter(box); }) && box.isMouseOver() && !box.isFocussed());
    QVERIFY(repaintsAfter([&] { Pointer::leave(box); }) && !box.isMouseOver());
}

void tst_TextBoxEx::givesStyleBack()
{
    auto box = std::make_unique<CTextBoxEx>();
    const QPointer<QStyle> shared = box->style();
    box.reset();
    QVERIFY(!shared.isNull());
    // The factory has forgotten it with the last reference, so the next request makes another one.
    const QStyle *next = CC4StyleFactory::getStyle(CC4StyleFactory::CC4Style);
    QVERIFY(next != shared.data());
    CC4StyleFactory::releaseStyle(CC4StyleFactory::CC4Style);
}

HOUSE_TEST_MAIN(tst_TextBoxEx)
#include "tst_TextBoxEx.moc"
