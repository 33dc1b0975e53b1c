#include "ContrastCheck.h"

#include "BitmapFile.h"
#include "ContrastPairs.h"
#include "Findings.h"
#include "Look.h"

#include <QImage>

#include <algorithm>
#include <cmath>
#include <utility>

namespace lookcheck {

namespace {

constexpr double readable = 4.5;  // WCAG 2, level AA, for text that is not large; no text of the controls is
constexpr double highest = 21.0;  // of any two colours: black and white
constexpr double noticed = 0.05;  // a difference that shows in the number as printed
constexpr int gradientSteps = 64; // a text may be as light as the middle of its gradient
constexpr int opaque = 255;

// Where the label stands on a push button: rows 6 to 20 of 27.
constexpr int labelTop = 6;
constexpr int labelBottom = 20;
constexpr int faceHeight = 27;
constexpr int widestTile = 64; // more columns of a tile than that tell nothing new

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

// `share` of the upper colour over the lower one.
QColor mixed(const QColor &upper, const QColor &lower, double share)
{
    const auto channel = [share](int over, int under) {
        return qRound(share * over + (1.0 - share) * under);
    };
    return QColor(channel(upper.red(), lower.red()), channel(upper.green(), lower.green()),
                  channel(upper.blue(), lower.blue()));
}

double ratioOn(const QColor &text, int alpha, const QColor &ground)
{
    return contrastRatio(mixed(text, ground, alpha / double(opaque)), ground);
}

double lowestOnGradient(const QColor &text, int alpha, const QColor &start, const QColor &end)
{
    double lowest = highest;
    for (int step = 0; step <= gradientSteps; ++step)
        lowest = std::min(lowest, ratioOn(text, alpha, mixed(end, start, step / double(gradientSteps))));
    return lowest;
}

double lowestOnBitmap(const QColor &text, int alpha, const QImage &bitmap, const QColor &behind)
{
    double lowest = highest;
    const int columns = std::min(bitmap.width(), widestTile);
    const int top = (bitmap.height() * labelTop + faceHeight - 1) / faceHeight; // a row that is wholly behind the label
    const int bottom = (bitmap.height() - 1) * labelBottom / (faceHeight - 1);
    for (int y = top; y <= bottom; ++y) {
        for (int x = 0; x < columns; ++x) {
            const QColor pixel = bitmap.pixelColor(x, y);
            lowest = std::min(lowest, ratioOn(text, alpha, mixed(pixel, behind, pixel.alphaF())));
        }
    }
    return lowest;
}

/** A pair whose contrast is too low, and where one may change that. */
struct LowContrast
{
    QString file;
    int line;
    Severity severity;
    QStringList places;
};

class ContrastsCheck
{
public:
    explicit ContrastsCheck(const Look &look) : m_look(look) {}

    void run(Findings *findings)
    {
        for (const ContrastPair &pair : contrastPairs)
            check(pair);
        for (const LowContrast &low : std::as_const(m_low)) {
            // The looks of several languages share lines, and most of what these make hard to read.
            QStringList places;
            for (const QString &place : low.places)
                if (findings->isFirst(place))
                    places.append(place);
            if (!places.isEmpty())
                findings->add({low.severity, low.file, low.line,
                               QStringLiteral("Hard to read: %1.").arg(places.join(QStringLiteral(", "))),
                               QStringLiteral("Take colours whose contrast is at least %1 to 1.").arg(readable)});
        }
    }

private:
    void check(const ContrastPair &pair)
    {
        const Given<QColor> text = given(pair.text, Qt::black);
        const Given<QColor> ground = given(pair.ground, Qt::white);
        const Given<QColor> end = pair.groundEnd != nullptr ? given(pair.groundEnd, Qt::white) : ground;
        if (text.isFaulty || ground.isFaulty || end.isFaulty)
            return;
        if (pair.bitmap != nullptr) {
            checkOnBitmap(pair, text, ground.value);
            return;
        }
        const double ratio = lowestOnGradient(text.value, pair.textAlpha, ground.value, end.value);
        const double builtIn = builtInRatio(pair);
        if (ratio < readable)
            tell(ratio < builtIn - noticed, mostOwn({text, ground, end}), pair, ratio, keysOf(pair));
    }

    static QString keysOf(const ContrastPair &pair)
    {
        const auto name = [](const char *key, const char *fixed) {
            return QLatin1String(key != nullptr ? key : fixed);
        };
        const QString keys = QStringLiteral("%1 on %2").arg(name(pair.text, "black"), name(pair.ground, "white"));
        return pair.groundEnd == nullptr ? keys : QStringLiteral("%1 to %2").arg(keys, QLatin1String(pair.groundEnd));
    }

    Given<QColor> given(const char *key, const QColor &fixed) const
    {
        return key != nullptr ? m_look.color(QLatin1String(key)) : Given<QColor>{fixed, QString(), 0, false};
    }

    // The artwork of the built-in look is readable, so here is nothing to compare with.
    void checkOnBitmap(const ContrastPair &pair, const Given<QColor> &text, const QColor &behind)
    {
        const QString path = m_look.find(QString::fromUtf16(pair.bitmap));
        QImage bitmap;
        if (path.isEmpty() || readBitmap(path, &bitmap).fault != BitmapFault::None)
            return;
        const double ratio = lowestOnBitmap(text.value, pair.textAlpha, bitmap, behind);
        if (ratio < readable - noticed)
            tell(true, text.file.isEmpty() ? Given<QColor>{text.value, path, 0, false} : text, pair, ratio,
                 QStringLiteral("%1 on the bitmap").arg(QLatin1String(pair.text)));
    }

    static double builtInRatio(const ContrastPair &pair)
    {
        const auto color = [](const char *key, const QColor &fixed) {
            return key != nullptr ? builtInColor(QLatin1String(key)) : fixed;
        };
        const QColor ground = color(pair.ground, Qt::white);
        return lowestOnGradient(color(pair.text, Qt::black), pair.textAlpha, ground, color(pair.groundEnd, ground));
    }

    // What the deployer gave is what the deployer can change, and what the language's file gave is what makes this look
    // another one than the common look.
    Given<QColor> mostOwn(const QVector<Given<QColor>> &colors) const
    {
        const auto find = [&colors](const QString &folder) {
            return std::find_if(colors.cbegin(), colors.cend(), [&folder](const Given<QColor> &color) {
                return !color.file.isEmpty() && color.file.startsWith(folder);
            });
        };
        for (const QString &folder : {m_look.folder(), m_look.directory()})
            if (const auto own = find(folder + QLatin1Char('/')); own != colors.cend())
                return *own;
        return {QColor(), m_look.commonPath(lookOverridesFile), 0, false};
    }

    // One line of a file serves many places; it is told once.
    void tell(bool isWorse, const Given<QColor> &source, const ContrastPair &pair, double ratio, const QString &keys)
    {
        const QString place =
            QStringLiteral("%1 (%2, %3 to 1)").arg(QLatin1String(pair.where), keys, QString::number(ratio, 'f', 1));
        const Severity severity = isWorse ? Severity::Warning : Severity::Note;
        for (LowContrast &low : m_low) {
            if (source.line == 0 || low.file != source.file || low.line != source.line || low.severity != severity)
                continue;
            low.places.append(place);
            return;
        }
        m_low.append({source.file, source.line, severity, {place}});
    }

    const Look &m_look;
    QVector<LowContrast> m_low;
};

} // namespace

double contrastRatio(const QColor &left, const QColor &right)
{
    const auto [darker, lighter] = std::minmax({luminance(left), luminance(right)});
    return (lighter + 0.05) / (darker + 0.05);
}

void checkContrast(const Look &look, Findings *findings)
{
    ContrastsCheck(look).run(findings);
}

} // namespace lookcheck
