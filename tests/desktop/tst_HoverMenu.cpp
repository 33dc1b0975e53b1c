// The glowing button and its menu under a real pointer, in real windows.
#include "RealPointer.h"
#include "helpers/HouseTest.h"

#include "ButtonEx/ButtonEx.h"
#include "MenuEx/MenuEx.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QSignalSpy>

namespace {

// The menu opens over the upper part of its button, this corner stays free.
QPoint freeCornerOf(const QWidget &button)
{
    return button.mapToGlobal(button.rect().bottomRight() - QPoint(3, 3));
}

bool isUnrolled(const CMenuEx &menu)
{
    return menu.isVisible() && menu.height() == menu.sizeHint().height();
}

} // namespace

class tst_HoverMenu : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void unrollsUnderThePointerAndClosesByItself();
    void staysUnderThePointer();
    void entryIsChosenByClick();
    void pressClosesIt();
    void otherButtonTakesOver();

private:
    QPoint entry(int index) const
    {
        return m_menu->mapToGlobal(m_menu->actionGeometry(m_menu->actions().at(index)).center());
    }
    QPoint away() const { return m_window->mapToGlobal(QPoint(20, 20)); }

    std::unique_ptr<QWidget> m_window;
    CButtonEx *m_button = nullptr;
    CButtonEx *m_other = nullptr;
    CMenuEx *m_menu = nullptr;
    CMenuEx *m_otherMenu = nullptr;
};

void tst_HoverMenu::init()
{
    HouseTest::init();
    m_window = std::make_unique<QWidget>();
    m_window->setGeometry(200, 200, 700, 500);
    const auto addButton = [this](int x, CMenuEx *menu) {
        auto *button = new CButtonEx(m_window.get());
        button->setButtonStyle(CButtonEx::BSEX_Glowing);
        button->setText(QStringLiteral("Share photos"));
        button->setMenu(menu);
        button->setGeometry(x, 300, 100, 80);
        for (int i = 0; i < 6; ++i)
            menu->addAction(QStringLiteral("Entry %1").arg(i));
        return button;
    };
    QPalette palette = m_window->palette();
    palette.setBrush(QPalette::Window, palette.highlight());
    m_window->setPalette(palette);
    m_menu = new CMenuEx(m_window.get());
    m_otherMenu = new CMenuEx(m_window.get());
    m_button = addButton(100, m_menu);
    m_other = addButton(400, m_otherMenu);
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    RealPointer::clickAt(away());
    QTRY_VERIFY(QApplication::activeWindow() == m_window.get());
}

void tst_HoverMenu::cleanup()
{
    m_window.reset();
    HouseTest::cleanup();
}

void tst_HoverMenu::unrollsUnderThePointerAndClosesByItself()
{
    RealPointer::moveTo(freeCornerOf(*m_button));
    QTRY_VERIFY(m_menu->isVisible());
    QVERIFY(m_menu->height() < m_menu->sizeHint().height());
    QTRY_VERIFY(m_menu->height() > m_menu->sizeHint().height() / 2);
    QTRY_VERIFY(isUnrolled(*m_menu));
    QTRY_VERIFY(m_button->getGlowAlpha() > 0.95F);

    QElapsedTimer clock;
    clock.start();
    RealPointer::moveTo(away());
    QTRY_VERIFY_WITH_TIMEOUT(!m_menu->isVisible(), 4000);
    QVERIFY2(clock.elapsed() >= 1000, qPrintable(QString::number(clock.elapsed())));
    QTRY_VERIFY(m_button->getGlowAlpha() < 0.05F);
}

void tst_HoverMenu::staysUnderThePointer()
{
    RealPointer::moveTo(freeCornerOf(*m_button));
    QTRY_VERIFY(isUnrolled(*m_menu));
    RealPointer::moveTo(entry(3));
    QTRY_VERIFY(m_menu->cursorOnMenu());
    QTRY_COMPARE(m_menu->activeAction(), m_menu->actions().at(3));
    VERIFY_HOLDS_FOR(m_menu->isVisible(), 2000);
}

void tst_HoverMenu::entryIsChosenByClick()
{
    const QSignalSpy chosen(m_menu, &QMenu::triggered);
    RealPointer::moveTo(freeCornerOf(*m_button));
    QTRY_VERIFY(isUnrolled(*m_menu));
    RealPointer::moveTo(entry(2));
    QTRY_COMPARE(m_menu->activeAction(), m_menu->actions().at(2));
    RealPointer::click(3);
    VERIFY_HOLDS_FOR(chosen.isEmpty() && m_menu->isVisible(), 300);
    RealPointer::click(1);
    QTRY_COMPARE(static_cast<int>(chosen.count()), 1);
    QCOMPARE(chosen.first().first().value<QAction *>(), m_menu->actions().at(2));
    QTRY_VERIFY(!m_menu->isVisible());
}

void tst_HoverMenu::pressClosesIt()
{
    RealPointer::moveTo(freeCornerOf(*m_button));
    QTRY_VERIFY(isUnrolled(*m_menu));
    // A press beside both closes it, as it does any menu; one on the button also keeps it away until the mouse has
    // left.
    RealPointer::clickAt(away());
    QTRY_VERIFY(!m_menu->isVisible());
    RealPointer::moveTo(freeCornerOf(*m_button));
    QTRY_VERIFY(isUnrolled(*m_menu));
    const QSignalSpy clicked(m_button, &CButtonEx::clicked2);
    RealPointer::click(1);
    QTRY_VERIFY(!m_menu->isVisible());
    QTRY_COMPARE(static_cast<int>(clicked.count()), 1); // the same click is the button's
    QVERIFY(!m_button->isDown());
    for (int i = 1; i < 6; ++i)
        RealPointer::moveTo(freeCornerOf(*m_button) - QPoint(i, i));
    VERIFY_HOLDS_FOR(!m_menu->isVisible(), 500);
    RealPointer::moveTo(away());
    QTRY_VERIFY(!m_button->underMouse());
    RealPointer::moveTo(freeCornerOf(*m_button));
    QTRY_VERIFY(m_menu->isVisible());
}

void tst_HoverMenu::otherButtonTakesOver()
{
    RealPointer::moveTo(freeCornerOf(*m_button));
    QTRY_VERIFY(m_menu->isVisible());
    RealPointer::moveTo(freeCornerOf(*m_other));
    QTRY_VERIFY_WITH_TIMEOUT(m_otherMenu->isVisible(), 5000);
    QVERIFY(!m_menu->isVisible());
}

HOUSE_TEST_MAIN(tst_HoverMenu)
#include "tst_HoverMenu.moc"
