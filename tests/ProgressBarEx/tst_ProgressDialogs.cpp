#include "helpers/HouseTest.h"

#include "CC4Styles/CC4StyleFactory.h"
#include "ProgressBarEx/ProgressBarEx.h"
#include "ProgressDialogEx/ProgressDialogEx.h"
#include "RainbowProgressDialog/RainbowProgressDialog.h"
#include "UiGraphics.h"

#include <QAccessible>
#include <QApplication>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QTemporaryDir>

namespace {

QTemporaryDir logDirectory;

// The messages of the detail records that a step leaves.
template <typename Step>
QStringList detailsOf(Step &&step)
{
    QFile file(logDirectory.filePath(QStringLiteral("log")));
    const qint64 before = file.size();
    step();
    if (!file.open(QIODevice::ReadOnly) || !file.seek(before))
        return {QStringLiteral("no log")};
    QStringList messages;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString &line : lines)
        if (line.contains(QLatin1String(" 6 CommonControls ")))
            messages.append(line.section(QLatin1String("): "), 1));
    return messages;
}

QLabel *row(const CRainbowProgressDialog &dialog, int row)
{
    return dialog.findChild<QLabel *>(QStringLiteral("m_lblMessage%1").arg(row));
}

const QString longText = QStringLiteral("The photos that have been chosen are prepared for printing in the wanted "
                                        "size and on the wanted paper, and sent to the shop.");

} // namespace

class tst_ProgressDialogs : public HouseTest
{
    Q_OBJECT

public:
    tst_ProgressDialogs()
    {
        qputenv("ZEL_LOG", "trace");
        qputenv("ZEL_LOG_FILE", logDirectory.filePath(QStringLiteral("log")).toLocal8Bit());
    }

private Q_SLOTS:
    void initTestCase() { CC4StyleFactory::getStyle(CC4StyleFactory::CC4Style); }
    void cleanupTestCase() { CC4StyleFactory::releaseStyle(CC4StyleFactory::CC4Style); }
    void dialogStartsAsTold();
    void dialogForwards();
    void dialogWithoutItsParts();
    void dialogShape();
    void dialogClosesOnEscape();
    void dialogTellsScreenReaders();
    void rainbowStartsAsTold();
    void rainbowRowsAreDecidedAtShow();
    void rainbowFitsItsHeight();
    void rainbowMaskFollows();
    void rainbowGradientStays();
    void rainbowAlignsOneRow();
    void rainbowRowThatDoesNotExist();
    void rainbowIsPaintedOnlyWhenAsked();
    void rainbowTellsScreenReaders();
};

void tst_ProgressDialogs::dialogStartsAsTold()
{
    CProgressDialogEx dialog;
    QVERIFY(dialog.minimum() == 0 && dialog.maximum() == 100 && dialog.value() == 100 && dialog.text().isEmpty());
    QCOMPARE(dialog.windowType(), Qt::Popup);
    QVERIFY(dialog.isModal());
    QVERIFY(dialog.minimumSize() == QSize(375, 95) && dialog.maximumSize() == QSize(375, 95));
    const auto *inner = dialog.findChild<QGridLayout *>(QStringLiteral("gridLayout1"));
    const auto *label = dialog.findChild<QLabel *>(QStringLiteral("m_lblMessage"));
    const auto *bar = dialog.findChild<QProgressBar *>(QStringLiteral("m_ProgressBar"));
    QVERIFY(inner->itemAtPosition(0, 0)->widget() == label && inner->itemAtPosition(1, 0)->widget() == bar);
    QVERIFY(dialog.font().pointSize() == 8 && label->font().pointSize() == 12 && !label->wordWrap());
    QCOMPARE(label->palette().color(QPalette::WindowText), UIGGetColor(QStringLiteral("UIGCLR_WHITE")));
    // A gradient among a bar's colours would give it a black frame.
    QVERIFY(bar->palette().brush(QPalette::Window).gradient() == nullptr);
    dialog.setText(longText);
    dialog.grab();
    QCOMPARE(dialog.size(), QSize(375, 95));
    QCOMPARE(bar->geometry(), QRect(0, 70, 375, 25));
}

void tst_ProgressDialogs::dialogForwards()
{
    CProgressDialogEx dialog;
    dialog.setRange(10, 20);
    dialog.setValue(15);
    QVERIFY(dialog.minimum() == 10 && dialog.maximum() == 20 && dialog.value() == 15);
    dialog.setMinimum(12);
    dialog.setMaximum(18);
    dialog.setText(QStringLiteral("Müller & Sons"));
    QVERIFY(dialog.minimum() == 12 && dialog.maximum() == 18);
    QCOMPARE(dialog.text(), QStringLiteral("Müller & Sons"));
    dialog.setValue(99);
    QCOMPARE(dialog.value(), 15);
    dialog.reset();
    QCOMPARE(dialog.value(), 11);
    QCOMPARE(detailsOf([&] { dialog.setValue(dialog.maximum()); }),
             QStringList() << QStringLiteral("CProgressDialogEx::maximum - m_ProgressBar != NULL")
                           << QStringLiteral("CProgressDialogEx::setValue"));
}

void tst_ProgressDialogs::dialogWithoutItsParts()
{
    CProgressDialogEx dialog;
    delete dialog.findChild<QLabel *>(QStringLiteral("m_lblMessage"));
    delete dialog.findChild<QProgressBar *>(QStringLiteral("m_ProgressBar"));
    dialog.setText(QStringLiteral("nowhere"));
    dialog.setRange(1, 2);
    dialog.setMinimum(1);
    dialog.setMaximum(2);
    dialog.setValue(1);
    dialog.reset();
    QVERIFY(dialog.text().isEmpty() && dialog.minimum() == -1 && dialog.maximum() == -1);
    QCOMPARE(detailsOf([&] { QCOMPARE(dialog.value(), -1); }),
             QStringList(QStringLiteral("CProgressDialogEx::value - m_ProgressBar = NULL")));
}

void tst_ProgressDialogs::dialogShape()
{
    CProgressDialogEx dialog;
    const QRegion mask = dialog.mask();
    // Two columns go at the left; of the path's last row and column a region has none.
    QCOMPARE(mask.boundingRect(), QRect(2, 0, 372, 94));
    QVERIFY(mask.contains(QPoint(2, 0)) && mask.contains(QPoint(373, 0)));
    QVERIFY(mask.contains(QPoint(2, 80)) && mask.contains(QPoint(15, 93)) && mask.contains(QPoint(360, 93)));
    QVERIFY(!mask.contains(QPoint(2, 90)) && !mask.contains(QPoint(5, 93)) && !mask.contains(QPoint(373, 90)));
    const QImage picture = dialog.grab().toImage();
    QVERIFY(picture.pixelColor(187, 47) == UIGGetColor(QStringLiteral("UIGCLR_PROGRESSDIALOGEX_GRAD2")));
    QVERIFY(picture.pixelColor(3, 3).lightness() < picture.pixelColor(187, 20).lightness());
}

void tst_ProgressDialogs::dialogClosesOnEscape()
{
    CProgressDialogEx counting;
    CRainbowProgressDialog busy;
    for (QDialog *dialog : {static_cast<QDialog *>(&counting), static_cast<QDialog *>(&busy)}) {
        const QSignalSpy rejected(dialog, &QDialog::rejected);
        dialog->show();
        QVERIFY(QApplication::activePopupWidget() == dialog && QApplication::activeModalWidget() == dialog);
        QTest::keyClick(dialog, Qt::Key_Return); // there is no button
        QVERIFY(dialog->isVisible());
        QTest::keyClick(dialog, Qt::Key_Escape);
        QVERIFY(!dialog->isVisible());
        QCOMPARE(static_cast<int>(rejected.count()), 1);
        dialog->show();
        QTest::mouseClick(dialog, Qt::LeftButton, Qt::NoModifier, QPoint(-20, 10));
        QVERIFY(!dialog->isVisible());
    }
}

void tst_ProgressDialogs::dialogTellsScreenReaders()
{
    CProgressDialogEx dialog;
    dialog.setRange(0, 40);
    dialog.setValue(12);
    dialog.setText(QStringLiteral("Copying Müller & Sons"));
    QAccessibleInterface *ofDialog = QAccessible::queryAccessibleInterface(&dialog);
    QCOMPARE(ofDialog->role(), QAccessible::Dialog);
    QVERIFY(!ofDialog->state().busy);
    QCOMPARE(ofDialog->text(QAccessible::Name), dialog.text());
    dialog.setWindowTitle(QStringLiteral("Copy"));
    QCOMPARE(ofDialog->text(QAccessible::Name), QStringLiteral("Copy"));
    QCOMPARE(ofDialog->text(QAccessible::Description), dialog.text());
    QAccessibleInterface *ofBar = QAccessible::queryAccessibleInterface(dialog.findChild<QProgressBar *>());
    QCOMPARE(ofBar->text(QAccessible::Name), dialog.text());
    QCOMPARE(ofBar->valueInterface()->currentValue().toInt(), 12);
    QCOMPARE(ofBar->valueInterface()->maximumValue().toInt(), 40);
}

void tst_ProgressDialogs::rainbowStartsAsTold()
{
    const CRainbowProgressDialog dialog;
    QCOMPARE(dialog.windowType(), Qt::Popup);
    QVERIFY(dialog.isModal());
    QCOMPARE(dialog.minimumSize(), QSize(450, 0));
    const auto *grid = dialog.findChild<QGridLayout *>(QStringLiteral("gridLayout"));
    for (int i = 0; i < 3; ++i) {
        const QLabel *label = row(dialog, i);
        QCOMPARE(grid->itemAtPosition(i, 0)->widget(), label);
        QVERIFY(label->alignment() == Qt::AlignCenter);
        QVERIFY(label->font().bold() == (i == 0) && label->font().pointSize() == (i == 0 ? 13 : 12));
        QCOMPARE(label->contentsMargins(), QMargins(15, 15, 15, 5));
        QCOMPARE(label->palette().color(QPalette::WindowText), UIGGetColor(QStringLiteral("UIGCLR_WHITE")));
    }
    const auto *bar = dialog.findChild<CProgressBarEx *>(QStringLiteral("progressBar"));
    QCOMPARE(grid->itemAtPosition(3, 0)->widget(), bar);
}

void tst_ProgressDialogs::rainbowRowsAreDecidedAtShow()
{
    CRainbowProgressDialog dialog;
    dialog.setText(QStringLiteral("Heading"), 0);
    dialog.show();
    QVERIFY(row(dialog, 0)->isVisible() && !row(dialog, 1)->isVisible() && !row(dialog, 2)->isVisible());
    const int height = dialog.height();
    dialog.setText(QStringLiteral("Later"), 1);
    QCOMPARE(dialog.text(1), QStringLiteral("Later"));
    dialog.clear(0);
    dialog.grab();
    QVERIFY(row(dialog, 0)->isVisible() && !row(dialog, 1)->isVisible());
    QVERIFY(dialog.text(0).isEmpty() && dialog.height() <= height && dialog.height() > 40);
    dialog.hide();
    dialog.show();
    QVERIFY(!row(dialog, 0)->isVisible() && row(dialog, 1)->isVisible());
}

void tst_ProgressDialogs::rainbowFitsItsHeight()
{
    CRainbowProgressDialog dialog;
    dialog.show();
    QCOMPARE(dialog.size(), QSize(450, 20)); // the bar alone
    dialog.hide();
    dialog.setText(QStringLiteral("Heading"), 0);
    dialog.setText(QStringLiteral("One line"), 1);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const int shortHeight = dialog.height();
    QCOMPARE(shortHeight, row(dialog, 0)->heightForWidth(450) + 10 + row(dialog, 1)->heightForWidth(450) + 10 + 20);
    dialog.setText(longText, 1);
    QTRY_VERIFY(dialog.height() >= shortHeight + row(dialog, 1)->fontMetrics().height());
    QCOMPARE(dialog.width(), 450);
    QTRY_COMPARE(dialog.findChild<CProgressBarEx *>()->geometry(), QRect(0, dialog.height() - 20, 450, 20));
    dialog.setText(QStringLiteral("One line"), 1);
    QTRY_COMPARE(dialog.height(), shortHeight);
}

void tst_ProgressDialogs::rainbowMaskFollows()
{
    CRainbowProgressDialog dialog;
    dialog.setText(longText, 1);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    const auto bounds = [&dialog] {
        return QRect(0, 0, dialog.width() - 1, dialog.height() - 1);
    };
    QTRY_COMPARE(dialog.mask().boundingRect(), bounds());
    dialog.setText(QStringLiteral("One line"), 1);
    QTRY_COMPARE(dialog.mask().boundingRect(), bounds());
    const int bottom = bounds().bottom();
    QVERIFY(dialog.mask().contains(QPoint(0, 0)) && dialog.mask().contains(QPoint(448, 0)));
    QVERIFY(!dialog.mask().contains(QPoint(2, bottom)) && dialog.mask().contains(QPoint(12, bottom)));
    QVERIFY(!dialog.mask().contains(QPoint(446, bottom)));
}

void tst_ProgressDialogs::rainbowGradientStays()
{
    CRainbowProgressDialog dialog;
    dialog.setText(longText, 1);
    dialog.show();
    const auto gradient = [&dialog] {
        return *static_cast<const QRadialGradient *>(dialog.palette().brush(QPalette::Window).gradient());
    };
    const QRadialGradient atShow = gradient();
    QVERIFY(atShow.radius() == 225.0 && atShow.center() == atShow.focalPoint() && atShow.center().x() == 225.0);
    dialog.setText(QStringLiteral("One line"), 1);
    dialog.grab();
    QCOMPARE(gradient(), atShow);
}

void tst_ProgressDialogs::rainbowAlignsOneRow()
{
    CRainbowProgressDialog dialog;
    dialog.setTextAlignment(Qt::AlignLeft, 2);
    QCOMPARE(row(dialog, 2)->alignment(), Qt::AlignLeft);
    QVERIFY(row(dialog, 0)->alignment() == Qt::AlignCenter && row(dialog, 1)->alignment() == Qt::AlignCenter);
}

void tst_ProgressDialogs::rainbowRowThatDoesNotExist()
{
    CRainbowProgressDialog dialog;
    const QString end = QStringLiteral(" - default statement in switch case");
    for (const int number : {-1, 3}) {
        const QStringList records = detailsOf([&] {
            dialog.setText(QStringLiteral("nowhere"), number);
            dialog.clear(number);
            dialog.setTextAlignment(Qt::AlignLeft, number);
            QVERIFY(dialog.text(number).isEmpty());
        });
        QCOMPARE(records.join(QLatin1Char('\n')),
                 "CRainbowProgressDialog::setText(QString msg, int row)" + end +
                     "\nCRainbowProgressDialog::clear(int row)" + end +
                     "\nCRainbowProgressDialog::setTextAlignment(Qt::Alignment alignment, int row)" + end +
                     "\nCRainbowProgressDialog::text(int row) " + end);
    }
    for (int i = 0; i < 3; ++i)
        QVERIFY(dialog.text(i).isEmpty() && row(dialog, i)->alignment() == Qt::AlignCenter);
}

// Its painting fits height and mask: nothing for every tick of the bar.
void tst_ProgressDialogs::rainbowIsPaintedOnlyWhenAsked()
{
    PaintCounter ofDialog;
    PaintCounter ofBar;
    CRainbowProgressDialog dialog;
    dialog.setText(QStringLiteral("Heading"), 0);
    dialog.show();
    QVERIFY(QTest::qWaitForWindowExposed(&dialog));
    dialog.findChild<CProgressBarEx *>()->installEventFilter(&ofBar);
    QTRY_VERIFY(ofBar.paints > 5); // the first painting is done
    dialog.installEventFilter(&ofDialog);
    ofBar.paints = 0;
    QTRY_VERIFY(ofBar.paints > 20);
    QCOMPARE(ofDialog.paints, 0);
}

void tst_ProgressDialogs::rainbowTellsScreenReaders()
{
    CRainbowProgressDialog dialog;
    dialog.setText(QStringLiteral("Heading"), 0);
    dialog.setText(QStringLiteral("Details"), 2);
    const QAccessibleInterface *ofDialog = QAccessible::queryAccessibleInterface(&dialog);
    QCOMPARE(ofDialog->role(), QAccessible::Dialog);
    QVERIFY(ofDialog->state().busy);
    QCOMPARE(ofDialog->text(QAccessible::Name), QStringLiteral("Heading\nDetails"));
    dialog.setWindowTitle(QStringLiteral("Order"));
    QCOMPARE(ofDialog->text(QAccessible::Name), QStringLiteral("Order"));
    QCOMPARE(ofDialog->text(QAccessible::Description), QStringLiteral("Heading\nDetails"));
}

HOUSE_TEST_MAIN(tst_ProgressDialogs)
#include "tst_ProgressDialogs.moc"
