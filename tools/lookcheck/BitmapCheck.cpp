#include "BitmapCheck.h"

#include "BitmapFile.h"
#include "Findings.h"
#include "Look.h"
#include "Nearest.h"
#include "UiGraphicsBitmaps.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>

#include <algorithm>
#include <functional>
#include <utility>

namespace lookcheck {

namespace {

constexpr int mostStrangers = 1000; // files of other names that are compared with the known ones

QString nameOf(const LookBitmap &bitmap)
{
    return QString::fromUtf16(bitmap.name);
}

QStringList bitmapNames()
{
    QStringList names;
    for (const LookBitmap &bitmap : lookBitmaps)
        names.append(nameOf(bitmap));
    return names;
}

QString textOf(const QSize &size)
{
    return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height());
}

QStringList strangersIn(const QString &directory)
{
    const QStringList known = bitmapNames();
    QStringList strangers;
    for (const QString &name : QDir(directory).entryList({QStringLiteral("*.png")}, QDir::Files, QDir::Name)) {
        QString single = name;
        single.replace(QLatin1String("@2x."), QLatin1String("."));
        if (!known.contains(single) && strangers.size() < mostStrangers)
            strangers.append(name);
    }
    return strangers;
}

/** One bitmap of the look as it was found. */
struct FoundBitmap
{
    const LookBitmap *bitmap = nullptr;
    QString path; // empty: missing
    QSize size;   // invalid: missing or unreadable
    QString twinPath;
    BitmapFile twin; // that was found there
    QStringList misfits;
};

class BitmapsCheck
{
public:
    BitmapsCheck(const Look &look, bool mayLack, Findings *findings)
        : m_look(look), m_mayLack(mayLack), m_findings(findings)
    {}

    void run()
    {
        for (const LookBitmap &bitmap : lookBitmaps)
            m_found.append(find(bitmap));
        compare([](const LookBitmap &bitmap) { return bitmap.widths; }, &QSize::width, QStringLiteral("wide"));
        compare([](const LookBitmap &bitmap) { return bitmap.heights; }, &QSize::height, QStringLiteral("high"));
        compareWithRoom();
        compareStripWithMask();
        for (const FoundBitmap &found : std::as_const(m_found))
            tellSizes(found);
        checkStrangers();
    }

private:
    FoundBitmap find(const LookBitmap &bitmap)
    {
        FoundBitmap found;
        found.bitmap = &bitmap;
        found.path = m_look.find(nameOf(bitmap));
        if (found.path.isEmpty()) {
            if (!m_mayLack)
                tellMissing(nameOf(bitmap));
            return found;
        }
        const BitmapFile file = readBitmap(found.path);
        found.size = file.size;
        tellFault(file, found.path, QStringLiteral("Nothing is drawn."));
        const QString twinPath = doubleResolutionPath(found.path);
        if (!QFileInfo::exists(twinPath))
            return found;
        found.twinPath = twinPath;
        found.twin = readBitmap(twinPath);
        return found;
    }

    void tellFault(const BitmapFile &file, const QString &path, const QString &consequence)
    {
        const auto tell = [&](Severity severity, const QString &what, const QString &remedy) {
            m_findings->add({severity, path, 0, QStringLiteral("%1 %2").arg(file.error, what), remedy});
        };
        switch (file.fault) {
        case BitmapFault::None: return;
        case BitmapFault::NoBitmap:
            return tell(Severity::Error, consequence, QStringLiteral("Put a PNG file in its place."));
        case BitmapFault::Forbidden:
            return tell(Severity::Error, consequence, QStringLiteral("Let all users of the application read it."));
        case BitmapFault::TooLarge:
            return tell(Severity::Error, consequence, QStringLiteral("Put a smaller one in its place."));
        case BitmapFault::Unchecked:
            return tell(Severity::Warning, QStringLiteral("It was not checked."),
                        QStringLiteral("Is it the right one?"));
        case BitmapFault::Drawing:
            return tell(Severity::Warning, QStringLiteral("It is drawn only where Qt has its SVG plugin."),
                        QStringLiteral("Put a PNG file in its place."));
        }
    }

    void tellMissing(const QString &name)
    {
        const QString near = nearest(name, strangersIn(m_look.directory()));
        m_findings->add({Severity::Error, m_look.commonPath(name), 0,
                         QStringLiteral("The bitmap is missing, and nothing is drawn in its place."),
                         near.isEmpty()
                             ? QStringLiteral("Copy it from the installed artwork.")
                             : QStringLiteral("Is it %1? Names count letter for letter.").arg(quoted(near))});
    }

    // Of bitmaps that should share a measure, those are odd that differ from most; of two, the one that its twin does
    // not confirm, or else the later one.
    void compare(const std::function<const char16_t *(const LookBitmap &)> &groupOf, int (QSize::*measure)() const,
                 const QString &adjective)
    {
        QMap<QString, QVector<FoundBitmap *>> groups;
        for (FoundBitmap &found : m_found)
            if (groupOf(*found.bitmap) != nullptr && found.size.isValid())
                groups[QString::fromUtf16(groupOf(*found.bitmap))].append(&found);
        for (auto group = groups.cbegin(); group != groups.cend(); ++group) {
            const int usual = usualOf(group.value(), measure);
            for (FoundBitmap *found : group.value())
                if ((found->size.*measure)() != usual)
                    found->misfits.append(
                        QStringLiteral("%1 %2 as the other %3").arg(QString::number(usual), adjective, group.key()));
        }
    }

    static int usualOf(const QVector<FoundBitmap *> &group, int (QSize::*measure)() const)
    {
        QMap<int, int> counts;
        for (const FoundBitmap *found : group)
            counts[(found->size.*measure)()] += found->twin.size == 2 * found->size ? 3 : 2;
        int usual = (group.constFirst()->size.*measure)();
        for (auto count = counts.cbegin(); count != counts.cend(); ++count)
            if (count.value() > counts.value(usual))
                usual = count.key();
        return usual;
    }

    void compareWithRoom()
    {
        for (FoundBitmap &found : m_found) {
            const QSize room = found.bitmap->room;
            if (room.isValid() && found.size.isValid() && found.size.expandedTo(room) != room)
                found.misfits.append(QStringLiteral("at most %1, or it is cut off").arg(textOf(room)));
        }
    }

    void compareStripWithMask()
    {
        const FoundBitmap *mask = foundOf(rainbowMaskBitmap);
        FoundBitmap *strip = foundOf(rainbowStripBitmap);
        if (strip->size.isValid() && mask->size.isValid() && strip->size.height() < mask->size.height())
            strip->misfits.append(
                QStringLiteral("at least %1 high to fill what its masks leave").arg(mask->size.height()));
    }

    FoundBitmap *foundOf(const char16_t *name)
    {
        const QString wanted = QString::fromUtf16(name);
        return &*std::find_if(m_found.begin(), m_found.end(),
                              [&wanted](const FoundBitmap &found) { return nameOf(*found.bitmap) == wanted; });
    }

    void tellSizes(const FoundBitmap &found)
    {
        if (!found.size.isValid())
            return;
        if (found.misfits.isEmpty()) {
            checkTwin(found);
            return;
        }
        m_findings->add({Severity::Error, found.path, 0,
                         QStringLiteral("The bitmap is %1 pixels and should be %2.")
                             .arg(textOf(found.size), found.misfits.join(QStringLiteral(", and "))),
                         QStringLiteral("Draw it, and its @2x twin, in that size.")});
    }

    void checkTwin(const FoundBitmap &found)
    {
        const BitmapFile &twin = found.twin;
        if (found.twinPath.isEmpty())
            m_findings->add(
                {Severity::Note, found.path, 0,
                 QStringLiteral("There is no @2x twin: screens of high density enlarge this one."),
                 QStringLiteral("Put %1 beside it.").arg(QFileInfo(doubleResolutionPath(found.path)).fileName())});
        else if (twin.fault != BitmapFault::None)
            tellFault(twin, found.twinPath, QStringLiteral("Screens of high density draw nothing."));
        else if (twin.size != 2 * found.size)
            m_findings->add({Severity::Error, found.twinPath, 0,
                             QStringLiteral("The twin is %1 pixels and not twice as large as its original of %2.")
                                 .arg(textOf(twin.size), textOf(found.size)),
                             QStringLiteral("Draw it in %1 pixels.").arg(textOf(2 * found.size))});
    }

    // An application may have bitmaps of its own beside ours, but hardly one for a language that is called like ours.
    void checkStrangers()
    {
        const bool isForLanguage = !m_look.language().isEmpty();
        const QStringList known = bitmapNames();
        for (const QString &name : strangersIn(m_look.folder())) {
            QString single = name;
            single.replace(QLatin1String("@2x."), QLatin1String("."));
            const QString near = nearest(single, known);
            if (near.isEmpty() || m_look.find(near).isEmpty())
                continue;
            m_findings->add({isForLanguage ? Severity::Warning : Severity::Note,
                             m_look.folder() + QLatin1Char('/') + harmless(name), 0,
                             QStringLiteral("The library loads no bitmap of this name."),
                             QStringLiteral("The nearest name is %1.").arg(near)});
        }
    }

    const Look &m_look;
    bool m_mayLack;
    Findings *m_findings;
    QVector<FoundBitmap> m_found;
};

bool isOversized(BitmapFault fault)
{
    return fault == BitmapFault::TooLarge || fault == BitmapFault::Unchecked;
}

} // namespace

void checkBitmaps(const Look &look, bool mayLack, Findings *findings)
{
    BitmapsCheck(look, mayLack, findings).run();
}

QString oversizedFile(const Look &look)
{
    for (const OverridesFile &file : look.overridesFiles())
        if (QFileInfo(file.path).size() > largestOverridesFile)
            return file.path;
    for (const LookBitmap &bitmap : lookBitmaps) {
        const QString path = look.find(nameOf(bitmap));
        for (const QString &candidate : {path, doubleResolutionPath(path)})
            if (!path.isEmpty() && isOversized(readBitmap(candidate).fault))
                return candidate;
    }
    return QString();
}

} // namespace lookcheck
