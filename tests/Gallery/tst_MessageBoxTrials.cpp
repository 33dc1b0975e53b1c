// The gallery's message boxes: what they leave behind, and pages that go before their boxes.
#include "helpers/HouseTest.h"

#include "GalleryOptions.h"
#include "MainWindow.h"

#include <ZelCmnCtrl03/CMessageBoxEx>

#include <QAbstractButton>
#include <QListWidget>
#include <QPointer>
#include <QTimer>

namespace {

CMessageBoxEx *openBox()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows)
        if (auto *box = qobject_cast<CMessageBoxEx *>(window); box != nullptr && box->isVisible())
            return box;
    return nullptr;
}

} // namespace

class tst_MessageBoxTrials : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void leavesNothing();
    void pageGoesBeforeItsBox();

private:
    static void showPage(gallery::MainWindow &window, const QString &name);
    /** Clicks the button of that text; returns when the box is over that `whileOpen` is called with. */
    template <typename Action>
    static bool runBox(gallery::MainWindow &window, const QString &caption, Action whileOpen);
};

void tst_MessageBoxTrials::showPage(gallery::MainWindow &window, const QString &name)
{
    for (int row = 0; row < window.pageList()->count(); ++row)
        if (window.pageList()->item(row)->data(Qt::UserRole).toString() == name)
            window.pageList()->setCurrentRow(row);
}

template <typename Action>
bool tst_MessageBoxTrials::runBox(gallery::MainWindow &window, const QString &caption, Action whileOpen)
{
    const QList<QAbstractButton *> buttons = window.findChildren<QAbstractButton *>();
    for (QAbstractButton *button : buttons) {
        if (button->text() != caption)
            continue;
        bool wasOpen = false;
        QTimer::singleShot(0, &window, [&] {
            const QPointer<CMessageBoxEx> box = openBox();
            wasOpen = !box.isNull();
            if (wasOpen)
                whileOpen(box);
        });
        button->click();
        return wasOpen;
    }
    return false;
}

void tst_MessageBoxTrials::leavesNothing()
{
    gallery::MainWindow window{gallery::GalleryOptions()};
    showPage(window, QStringLiteral("message-boxes"));
    const auto before = QApplication::allWidgets().size();
    for (const char *caption : {"Plain", "Around a widget", "Widget and help", "Without a parent"}) {
        QVERIFY(runBox(window, QLatin1String(caption), [](CMessageBoxEx *box) { box->close(); }));
        QVERIFY2(QApplication::allWidgets().size() == before, caption);
    }
}

void tst_MessageBoxTrials::pageGoesBeforeItsBox()
{
    gallery::MainWindow window{gallery::GalleryOptions()};
    showPage(window, QStringLiteral("message-boxes"));
    QPointer<CMessageBoxEx> left;
    QVERIFY(runBox(window, QStringLiteral("Without a parent"), [&](CMessageBoxEx *box) {
        left = box;
        showPage(window, QStringLiteral("sliders"));
        QVERIFY(!box->isVisible());
    }));
    QVERIFY(left.isNull());
}

HOUSE_TEST_MAIN(tst_MessageBoxTrials)
#include "tst_MessageBoxTrials.moc"
