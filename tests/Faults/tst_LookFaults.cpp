// Graphics directories, files in them and languages that are not as they should be: the look is the built-in one or
// lacks what is not there, and the application goes on, in bounded time and memory.
#include "helpers/HouseTest.h"

#include "ButtonEx/ButtonEx.h"
#include "CC4Styles/CC4StyleFactory.h"
#include "UiGraphics/Deployment.h"

#include <QPixmapCache>
#include <QRegularExpression>

#include <sys/resource.h>
#include <sys/stat.h>

namespace {

constexpr qint64 megabyte = qint64(1024) * 1024;

// Of a child process. The sanitizer keeps what has been freed, and its shadow.
#ifdef __SANITIZE_ADDRESS__
constexpr long mostKilobytes = 800 * 1024;
#else
constexpr long mostKilobytes = 256L * 1024;
#endif

const QStringList color{QStringLiteral("color"), QStringLiteral("UIGCLR_PB_NORMAL_BOTTOM")};
const QStringList pixmap{QStringLiteral("pixmap"), QStringLiteral("Close.png"), QStringLiteral("1")};
const QString builtIn = QStringLiteral("#fff7941d");
const QString overridden = QStringLiteral("#ff8a2be2");

const QByteArray override = "<Color Name='UIGCLR_PB_NORMAL_BOTTOM'>8A2BE2</Color>";

/** A document that is as long as wanted: the start, the middle over and over, the end. */
QByteArray filled(const QByteArray &start, const QByteArray &middle, const QByteArray &end, qint64 size = megabyte)
{
    return start + middle.repeated(int((size - start.size() - end.size()) / middle.size())) + end;
}

// A text of 2 to the power of 30 letters.
QByteArray billionLaughs()
{
    QByteArray entities = "<!DOCTYPE a [<!ENTITY l0 'ha'>";
    for (int i = 1; i < 30; ++i)
        entities += QStringLiteral("<!ENTITY l%1 '&l%2;&l%2;'>").arg(i).arg(i - 1).toLatin1();
    return entities + "]><a>&l29;" + override + "</a>";
}

QStringList artwork()
{
    return QDir(QStringLiteral(ARTWORK)).entryList({QStringLiteral("*.png")});
}

/** The pages that the gallery paints there; how it failed, where it does, also after the last page. */
QStringList paintedPages(const Deployment &deployment)
{
    const QString shots = deployment.home() + QStringLiteral("/shots");
    QStringList pages = deployment.ask({QStringLiteral("--shots"), shots}, QStringLiteral(GALLERY));
    for (QString &page : pages)
        if (!QImage(page).isNull())
            page = QFileInfo(page).fileName();
    return pages;
}

QStringList soundPages()
{
    Deployment deployment;
    deployment.set(QStringLiteral("ZEL_LOG"), QStringLiteral("warning"));
    deployment.set(QStringLiteral("ZEL_GRAPHICS_DIR"), QStringLiteral(ARTWORK));
    return paintedPages(deployment);
}

/** The elements that load bitmaps, each in the rectangle of a larger picture. */
QMap<QString, QImage> paintedElements(const QRect &place)
{
    const auto painted = [](const auto &draw) {
        return Picture::of(QSize(500, 500), [&draw](QPainter *painter) { draw(QApplication::style(), painter); });
    };
    const auto button = optionFor<QStyleOptionButton>(place, QStyle::State_Enabled | QStyle::State_Sunken);
    const auto primitive = [&](QStyle::PrimitiveElement element, const QWidget *widget = nullptr) {
        return painted(
            [&](QStyle *style, QPainter *painter) { style->drawPrimitive(element, &button, painter, widget); });
    };
    const auto box = optionFor<QStyleOptionComboBox>(place);
    auto bar = optionFor<QStyleOptionSlider>(place, QStyle::State_Enabled | QStyle::State_Horizontal);
    bar.rect.moveTo(0, 0); // where the parts of a bar always are
    bar.maximum = bar.pageStep = 10;
    bar.subControls = QStyle::SC_All;
    const auto drawBox = [&](QStyle *style, QPainter *painter) {
        style->drawComplexControl(QStyle::CC_ComboBox, &box, painter);
    };
    const auto drawBar = [&](QStyle *style, QPainter *painter) {
        painter->translate(place.topLeft());
        style->drawComplexControl(QStyle::CC_ScrollBar, &bar, painter);
    };
    auto entry = optionFor<QStyleOptionMenuItem>(place);
    entry.menuItemType = QStyleOptionMenuItem::Normal;
    entry.checkType = QStyleOptionMenuItem::NonExclusive;
    entry.menuHasCheckableItems = entry.checked = true;
    const auto drawEntry = [&](QStyle *style, QPainter *painter) {
        style->drawControl(QStyle::CE_MenuItem, &entry, painter);
    };
    const CButtonEx face;
    return {{QStringLiteral("check box"), primitive(QStyle::PE_IndicatorCheckBox)},
            {QStringLiteral("radio button"), primitive(QStyle::PE_IndicatorRadioButton)},
            {QStringLiteral("button"), primitive(QStyle::PE_PanelButtonCommand, &face)},
            {QStringLiteral("drop-down"), painted(drawBox)},
            {QStringLiteral("menu entry"), painted(drawEntry)},
            {QStringLiteral("scroll bar"), painted(drawBar)}};
}

bool isBounded()
{
    rusage usage{};
    getrusage(RUSAGE_CHILDREN, &usage); // of the largest child so far
    if (usage.ru_maxrss < mostKilobytes)
        return true;
    qWarning("%ld kilobytes", usage.ru_maxrss);
    return false;
}

} // namespace

class tst_LookFaults : public HouseTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void xml_data();
    void xml();
    void directory();
    void bitmap_data();
    void bitmap();
    void pipes();
    void language_data();
    void language();
    void everyPageIsPainted();
    void bitmapsStayInside();

private:
    const Deployment m_ownLook; // of this process
};

void tst_LookFaults::initTestCase()
{
    qputenv("ZEL_GRAPHICS_DIR", QFile::encodeName(m_ownLook.graphics()));
}

void tst_LookFaults::xml_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<qint64>("size"); // blown up to it
    QTest::addColumn<QString>("wanted");
    const auto row = [](const char *name, const QByteArray &content, const QString &wanted, qint64 size = 0) {
        QTest::newRow(name) << content << size << wanted;
    };
    row("nested entities", billionLaughs(), builtIn);
    const QByteArray letters = QByteArray(256, 'x');
    row("an entity, over and over", filled("<!DOCTYPE a [<!ENTITY l '" + letters + "'>]><a>", "&l;", override + "</a>"),
        overridden);
    row("a longer one", "<!DOCTYPE a [<!ENTITY l '" + letters.repeated(8) + "'>]><a>&l;" + override + "</a>", builtIn);
    row("100 megabytes of nothing", "<a>" + override, builtIn, 100 * megabyte);
    row("just not too large", filled("<a>", " ", override + "</a>"), overridden);
    row("too large by a byte", filled("<a>", " ", override + "</a>", megabyte + 1), builtIn); // and well-formed
    row("deep", filled("", "<a>", ""), builtIn);
    row("many elements", filled("<a>", "<Color Name='a'/>", override + "</a>"), overridden);
    row("many without a name", filled("<a>", "<Color/>", override + "</a>"), overridden);
    row("a long name", filled("<a><Color Name='", "x", "'/>" + override + "</a>"), overridden);
}

void tst_LookFaults::xml()
{
    QFETCH(QByteArray, content);
    QFETCH(qint64, size);
    QFETCH(QString, wanted);
    Deployment deployment;
    deployment.set(QStringLiteral("ZEL_LOG"), QStringLiteral("warning"));
    deployment.write(QStringLiteral("UIGraphics.xml"), content);
    if (size > 0)
        QVERIFY(QFile::resize(deployment.graphics() + QStringLiteral("/UIGraphics.xml"), size));
    QCOMPARE(deployment.ask(color), QStringList(wanted));
    QVERIFY(isBounded());
}

void tst_LookFaults::directory()
{
    for (const QString &path :
         {QStringLiteral("/nowhere/at/all"), QStringLiteral("/etc/passwd"), QStringLiteral("/dev/full"),
          QStringLiteral("/proc/self/mem"), // unreadable, also by root
          QLatin1Char('/') + QString(10000, QLatin1Char('x'))}) {
        Deployment deployment;
        deployment.set(QStringLiteral("ZEL_GRAPHICS_DIR"), path);
        QCOMPARE(deployment.ask(color + pixmap), QStringList({builtIn, QStringLiteral("null")}));
        QVERIFY(deployment.log().contains(QLatin1String("ERROR : Graphics path not found for: Close.png")));
    }
}

void tst_LookFaults::bitmap_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("isRefused");
    QTest::newRow("truncated") << Picture::png(64).left(90) << false;
    QTest::newRow("huge") << Picture::png(Picture::hugeSide) << true;
    QTest::newRow("huge and truncated") << Picture::png(Picture::hugeSide).left(1000) << true;
    QTest::newRow("huge by its own account") << QByteArray("P6 60000 60000 255\nabc") << false;
    QTest::newRow("empty") << QByteArray() << false;
    QTest::newRow("no bitmap") << QByteArray("<html/>") << false;
}

void tst_LookFaults::bitmap()
{
    QFETCH(QByteArray, content);
    QFETCH(bool, isRefused);
    const Deployment deployment;
    deployment.write(QStringLiteral("Close.png"), content);
    const QStringList image{QStringLiteral("image"), QStringLiteral("Close.png")};
    const QString null = QStringLiteral("null");
    QCOMPARE(deployment.ask(pixmap + pixmap + image), QStringList({null, null, null}));
    // Said once, not at every paint.
    QCOMPARE(deployment.log().count(QLatin1String("Close.png is not loaded")), isRefused ? 1 : 0);
    QVERIFY(isBounded());
}

// Whoever opened one to read would wait for its writer.
void tst_LookFaults::pipes()
{
    const Deployment deployment;
    QVERIFY(QDir().mkpath(deployment.graphics() + QStringLiteral("/Fonts")));
    for (const char *name : {"UIGraphics.xml", "Close.png", "Fonts/KORZEMED.otf"})
        QCOMPARE(mkfifo(QFile::encodeName(deployment.graphics() + QLatin1Char('/') + QLatin1String(name)), 0600), 0);
    QCOMPARE(deployment.ask(color + pixmap), QStringList({builtIn, QStringLiteral("null")}));
    QVERIFY(deployment.log().contains(QLatin1String("CUIGraphics::initializeFont : not registered: ")));
}

void tst_LookFaults::language_data()
{
    QTest::addColumn<QString>("tag");
    QTest::addColumn<QString>("recorded");
    const auto row = [](const char *name, const QString &tag, const QString &recorded) {
        QTest::newRow(name) << tag << recorded;
    };
    const QString letters(10000, QLatin1Char('x'));
    row("10,000 letters", letters, letters);
    row("a separator", "de/AT", "de/AT");
    row("only separators", "//", "//");
    row("out of the directory, a locale by its dots", "../../../..", "en");
    row("two lines", "de\nAT", "de AT");
    row("a placeholder", "%1%n", "%1%n");
}

// Such a tag has no files of its own; it takes the common ones and the fonts of all other languages.
void tst_LookFaults::language()
{
    QFETCH(QString, tag);
    QFETCH(QString, recorded);
    Deployment deployment;
    deployment.set(QStringLiteral("ZEL_LANGUAGE"), tag);
    deployment.addBitmap(QStringLiteral("Close.png"), QSize(3, 4));
    deployment.write(QStringLiteral("UIGraphics.xml"), "<a>" + override + "</a>");
    const QStringList font{QStringLiteral("font"), QStringLiteral("14"), QStringLiteral("-1"), QStringLiteral("0")};
    QCOMPARE(deployment.ask(color + pixmap + font),
             QStringList({overridden, QStringLiteral("3x4@1"), QStringLiteral("Tahoma,14px,-1pt,normal,antialias")}));
    const QString record = QStringLiteral(" 6 uigraphics [^\n]*: %1\n").arg(QRegularExpression::escape(recorded));
    QVERIFY(deployment.log().contains(QRegularExpression(record)));
}

// All painters, with bitmaps that none of them is made for.
void tst_LookFaults::everyPageIsPainted()
{
    if (QByteArray(GALLERY).isEmpty())
        QSKIP("built without the gallery");
    const QStringList pages = soundPages();
    QVERIFY2(pages.size() >= 20, qPrintable(pages.join(QLatin1Char('\n'))));
    Deployment deployment;
    deployment.set(QStringLiteral("ZEL_LOG"), QStringLiteral("warning"));
    for (const QByteArray &bitmap : {Picture::png(Picture::hugeSide), QByteArray("P6 1 1 255\nabc")}) {
        for (const QString &name : artwork())
            deployment.write(name, bitmap);
        QCOMPARE(paintedPages(deployment), pages);
        QVERIFY(isBounded());
    }
    deployment.set(QStringLiteral("ZEL_GRAPHICS_DIR"), QStringLiteral("/nowhere"));
    QCOMPARE(paintedPages(deployment), pages);
}

// Whoever has the style paint elements side by side must find each within its own rectangle.
void tst_LookFaults::bitmapsStayInside()
{
    const QRect place(100, 110, 90, 24);
    CC4StyleFactory::getStyle(CC4StyleFactory::CC4Style);
    for (const QSize &size : {QSize(1, 1), QSize(300, 3), QSize(3, 300), QSize(300, 300)}) {
        for (const QString &name : artwork())
            m_ownLook.addBitmap(name, size);
        QPixmapCache::clear();
        const QMap<QString, QImage> elements = paintedElements(place);
        for (auto element = elements.begin(); element != elements.end(); ++element) {
            QVERIFY2(!Picture::paintsOutside(element.value(), place), qPrintable(element.key()));
            // Scaled to the height of a button, a narrow slice has no width left.
            const bool isSeen = element.key() != QLatin1String("button") || size.width() >= size.height();
            QVERIFY2(Picture::boundsOf(element.value(), Qt::red).isNull() != isSeen, qPrintable(element.key()));
        }
    }
    CC4StyleFactory::releaseStyle(CC4StyleFactory::CC4Style);
}

HOUSE_TEST_MAIN(tst_LookFaults)
#include "tst_LookFaults.moc"
