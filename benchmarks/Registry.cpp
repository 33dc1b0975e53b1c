// The look registry beside the least that its lookups can take, and a log scope that is switched off.
#include "Clocks.h"
#include "Groups.h"

#include <UiGraphics.h>
#include <UiGraphicsColors.h>
#include <include/qt_globals.h>

#include <QFontMetrics>
#include <QMap>

namespace {

constexpr int manyTimes = 1000;

const QString group = QStringLiteral("registry");

// So that no call is left out for having no effect.
template <typename Value>
void keep(const Value &value)
{
    asm volatile("" : : "g"(&value) : "memory");
}

// As it is asked for: with a key of the middle of the table.
Comparison colors()
{
    QMap<QString, quint32> map;
    for (const ColorDefault &color : colorDefaults)
        map.insert(QString::fromUtf16(color.key), color.argb);
    const QString key = std::next(map.begin(), map.size() / 2).key();
    const auto ours = [key] {
        for (int i = 0; i < manyTimes; ++i)
            keep(UIGGetColor(key));
    };
    const auto bare = [key, map] {
        for (int i = 0; i < manyTimes; ++i)
            keep(QColor::fromRgb(map.value(key, 0)));
    };
    return {group,
            QStringLiteral("UIGGetColor, a search in a QMap"),
            nanoseconds,
            {{QStringLiteral("ours"), ours, {}}, {QStringLiteral("bare"), bare, {}}},
            {Promise::Ratio, 1.1, {}},
            manyTimes};
}

Comparison pixmaps()
{
    const QString name = QStringLiteral("PushbuttonWhiteBlit.png");
    const QString path = CUIGraphics::UIGGetImagePath(name);
    return {group,
            QStringLiteral("UIGGetPixmap, QPixmap(path)"),
            nanoseconds,
            {{QStringLiteral("ours"), [name] { keep(UIGGetPixmap(name)); }, {}},
             {QStringLiteral("bare"), [path] { keep(QPixmap(path)); }, {}}},
            {}};
}

// A step in a register, which waits for no other. Where a call waits for the one before, be it through memory or for
// its argument, the scope is done meanwhile and costs nothing.
unsigned stepOf(unsigned value)
{
    asm volatile("" : "+r"(value));
    return value;
}

// Some of them, so that it is not only calling and returning that is measured.
unsigned workOf(unsigned value)
{
    return stepOf(value + 1) ^ stepOf(value + 2) ^ stepOf(value + 3) ^ stepOf(value + 4) ^ stepOf(value + 5) ^
           stepOf(value + 6) ^ stepOf(value + 7) ^ stepOf(value + 8);
}

Q_NEVER_INLINE unsigned operationWithScope(unsigned value)
{
    ZEL_LOG_SCOPE;
    return workOf(value);
}

Q_NEVER_INLINE unsigned operationWithout(unsigned value)
{
    return workOf(value);
}

// Called by its name: the processor guesses a call through a pointer now better, now worse, which is more than a scope.
template <unsigned (*operation)(unsigned)>
void manyOf()
{
    for (unsigned i = 0; i < manyTimes; ++i)
        stepOf(operation(i));
}

Comparison logScope()
{
    return {group,
            QStringLiteral("an operation with a log scope, without"),
            nanoseconds,
            {{QStringLiteral("ours"), manyOf<operationWithScope>, {}},
             {QStringLiteral("bare"), manyOf<operationWithout>, {}}},
            {Promise::Difference, 2.0, {}},
            manyTimes};
}

} // namespace

double registryStartNanoseconds()
{
    keep(QFontMetrics(QFont()).height()); // every application has Qt's fonts
    const double before = processNanoseconds();
    CUIGraphics::initializeUIG();
    return processNanoseconds() - before;
}

std::vector<Comparison> registry()
{
    return {colors(), pixmaps(), logScope()};
}
