#include "helpers/HouseTest.h"

#include "include/qt_globals.h"

#include <QApplication>
#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>

namespace {

QTemporaryDir logDirectory;

template <std::size_t N>
QString text(const zel::FixedText<N> &fixed)
{
    return QString::fromUtf16(fixed.text);
}

struct Speaker
{
    static void speak()
    {
        ZEL_LOG_SCOPE;
        zel::logError(QStringLiteral("passed over"));
        zel::logException(QStringLiteral("caught"));
    }
    static void refuse()
    {
        ZEL_LOG_SCOPE_SAYING(u"refuse - said", zel::CommonControls);
        ZEL_LOG_REFUSAL(QStringLiteral("refused"));
    }
};

} // namespace

class tst_LogScope : public HouseTest
{
    Q_OBJECT

public:
    tst_LogScope()
    {
        qputenv("ZEL_LOG", "trace");
        qputenv("ZEL_LOG_FILE", logDirectory.filePath(QStringLiteral("log")).toLocal8Bit());
    }

private Q_SLOTS:
    void functionNames();
    void sourceNames();
    void recordsOfAScope();
};

void tst_LogScope::functionNames()
{
    QCOMPARE(text(zel::functionName("virtual void CButtonEx::setDefault(bool)")),
             QStringLiteral("CButtonEx::setDefault"));
    QCOMPARE(text(zel::functionName("CButtonEx::CButtonEx(QWidget*)")), QStringLiteral("CButtonEx::CButtonEx"));
    QCOMPARE(text(zel::functionName("virtual CButtonEx::~CButtonEx()")), QStringLiteral("CButtonEx::~CButtonEx"));
    QCOMPARE(text(zel::functionName("const QString& A::name(void (*)(int)) const")), QStringLiteral("A::name"));
    QCOMPARE(text(zel::functionName("std::function<void(int)> A::handler()")), QStringLiteral("A::handler"));
    QCOMPARE(text(zel::functionName("QMap<int, QString> A::map(int)")), QStringLiteral("A::map"));
    QCOMPARE(text(zel::functionName("static void (anonymous namespace)::f()")),
             QStringLiteral("(anonymous namespace)::f"));
}

void tst_LogScope::sourceNames()
{
    QCOMPARE(text(zel::sourceName("/x/ZelCmnCtrl03/ButtonEx/ButtonEx.cpp")), QStringLiteral(".\\ButtonEx\\ButtonEx"));
    QCOMPARE(text(zel::sourceName("/ZelCmnCtrl03/a/ZelCmnCtrl03/UiGraphics.cpp")), QStringLiteral(".\\UiGraphics"));
    QCOMPARE(text(zel::sourceName("C:\\x\\ZelCmnCtrl03\\MenuEx\\MenuEx.cpp")), QStringLiteral(".\\MenuEx\\MenuEx"));
    QCOMPARE(text(zel::sourceName("/elsewhere")), QStringLiteral(".\\elsewhere"));
}

void tst_LogScope::recordsOfAScope()
{
    Speaker::speak();
    Speaker::refuse();
    QFile file(logDirectory.filePath(QStringLiteral("log")));
    QVERIFY(file.open(QIODevice::ReadOnly));
    QStringList records;
    for (const QString &line : QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts))
        records.append(line.section(QRegularExpression(QStringLiteral("(trace|debug|warning|error) +")), 1));
    QCOMPARE(records.size(), 6);
    const QRegularExpression scope(
        QStringLiteral(R"(^[12] CommonControls \..*tst_LogScope\(\d+\): \S*Speaker::speak$)"));
    QVERIFY2(scope.match(records.first()).hasMatch(), qPrintable(records.first()));
    QCOMPARE(records.at(3), QLatin1Char('2') + records.first().mid(1)); // the same but for the level
    QVERIFY(records.at(1).startsWith(QLatin1String("5 Unknown .\\include\\qt_globals(")));
    QVERIFY(records.at(2).startsWith(QLatin1String("4 Unknown .\\include\\qt_globals(")));
    QVERIFY(records.at(4).startsWith(QLatin1Char('1')) && records.at(4).endsWith(QLatin1String(": refuse - said")));
    QVERIFY(records.at(5).startsWith(QLatin1Char('6')) && records.at(5).endsWith(QLatin1String(": refused")));
}

HOUSE_TEST_MAIN(tst_LogScope)
#include "tst_LogScope.moc"
