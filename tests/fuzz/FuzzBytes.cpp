#include "fuzz/FuzzBytes.h"

#include <QBitmap>
#include <QCursor>
#include <QKeySequence>
#include <QLocale>
#include <QRect>
#include <QUrl>

#include <limits>

namespace {

constexpr int awkwardNumbers[] = {0,
                                  1,
                                  -1,
                                  2,
                                  -2,
                                  7,
                                  99,
                                  100,
                                  101,
                                  255,
                                  256,
                                  -100,
                                  1000,
                                  32767,
                                  32768,
                                  65535,
                                  16777215,
                                  std::numeric_limits<int>::max(),
                                  std::numeric_limits<int>::max() - 1,
                                  std::numeric_limits<int>::max() / 2,
                                  std::numeric_limits<int>::min(),
                                  std::numeric_limits<int>::min() + 1,
                                  std::numeric_limits<int>::min() / 2};

constexpr int lengths[] = {0, 1, 2, 3, 5, 8, 10, 13, 17, 20, 22, 27, 40, 64, 83, 100, 160, 200, 320, 640, 1200, 3000};

constexpr int heightLimit = 640; // wide and high at once is only slow

const char16_t *const awkwardTexts[] = {
    u"",
    u" ",
    u"OK",
    u"&Mnemonic && more &",
    u"&",
    u"Benutzerdefinierte Druckereinstellungen werden übernommen",
    u"שלום עולם, זה טקסט ארוך מימין לשמאל",
    u"مرحبا (123) OK",
    u"写真を印刷しますか。写真を印刷しますか。写真を印刷しますか。",
    u"two\nlines\r\nand\ta tab",
    u"<b>rich</b> <a href='x'>link</a><br><img src='none.png' width='9'><table><tr><td>1</td></tr></table>",
    u"<a href=\"",
    u"<span dir='rtl'>שלום</span>",
    u"%1 %2 %n %",
    u"\xD800 lone \xDC00",
    u"a\u0301\u0301\u0301\u200F\u202E\u2066x\u2069\u200B",
    u"\U0001F468\u200D\U0001F469\u200D\U0001F467",
    u"BSEX_Glowing",
    u"QWidget { border: 3px solid red; padding: 40px; border-radius: 9px }",
    u"* { min-width: 300px; max-height: 0; background: url(none.png) }",
    u"QSlider::handle { image: none; width: 500px } QScrollBar { width: 0 }",
    u"file:///none",
};

constexpr int longTextLength = 3000;
constexpr int ownTextLength = 12;

QPixmap emptyBitmap()
{
    QBitmap bitmap(9, 9);
    bitmap.clear();
    return bitmap;
}

QPixmap filled(const QSize &size, const QColor &color, qreal ratio = 1.0)
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    pixmap.setDevicePixelRatio(ratio);
    return pixmap;
}

} // namespace

int FuzzBytes::number()
{
    const int kind = byte();
    if (kind < 128)
        return kind;
    if (kind < 192)
        return awkwardNumbers[kind % std::size(awkwardNumbers)];
    if (kind < 224)
        return 127 - kind;
    const quint32 bits = quint32(byte()) << 24 | quint32(byte()) << 16 | quint32(byte()) << 8 | quint32(byte());
    return static_cast<int>(bits);
}

int FuzzBytes::length()
{
    return of(lengths);
}

QSize FuzzBytes::size()
{
    const int width = length();
    return QSize(width, qMin(length(), heightLimit));
}

QPoint FuzzBytes::pointIn(const QSize &area)
{
    constexpr int steps = 32; // the area's edges lie at 4 and 28
    const auto coordinate = [this](int length) {
        return (length * (below(steps + 1) - 4)) / (steps - 8);
    };
    const int x = coordinate(area.width());
    return QPoint(x, coordinate(area.height()));
}

QString FuzzBytes::text()
{
    constexpr int listed = static_cast<int>(std::size(awkwardTexts));
    const int kind = below(listed + 3);
    if (kind < listed)
        return QString::fromUtf16(awkwardTexts[kind]);
    if (kind == listed)
        return QString(longTextLength, QLatin1Char('W'));
    if (kind == listed + 1)
        return QStringLiteral("word ").repeated(longTextLength / 5);
    QByteArray own;
    for (int i = below(ownTextLength); i > 0; --i)
        own += static_cast<char>(byte());
    return QString::fromUtf8(own);
}

QStringList FuzzBytes::texts()
{
    QStringList all;
    for (int i = below(6); i > 0; --i)
        all.append(text());
    return all;
}

QColor FuzzBytes::color()
{
    const int kind = byte();
    if (kind == 0)
        return QColor();
    return QColor::fromRgb((kind & 3) * 85, (kind >> 2 & 3) * 85, (kind >> 4 & 3) * 85, (kind >> 6) * 85);
}

QFont FuzzBytes::font()
{
    static const int pixelSizes[] = {1, 8, 12, 14, 40, 90};
    QFont font(flag() ? QStringLiteral("DejaVu Sans") : QStringLiteral("no such family"));
    font.setPixelSize(of(pixelSizes));
    const int looks = byte();
    font.setBold((looks & 1) != 0);
    font.setItalic((looks & 2) != 0);
    font.setUnderline((looks & 4) != 0);
    return font;
}

QPalette FuzzBytes::palette()
{
    QPalette palette;
    for (int i = below(4); i >= 0; --i) {
        const auto group = static_cast<QPalette::ColorGroup>(below(QPalette::NColorGroups));
        const auto role = static_cast<QPalette::ColorRole>(below(QPalette::NColorRoles));
        palette.setBrush(group, role, flag() ? QBrush(color()) : QBrush(pixmap()));
    }
    return palette;
}

QPixmap FuzzBytes::pixmap()
{
    switch (below(8)) {
    case 0: return QPixmap();
    case 1: return filled(QSize(1, 1), Qt::black);
    case 2: return filled(QSize(16, 16), QColor(0, 128, 255, 128));
    case 3: return filled(QSize(32, 32), Qt::red, 2.0);
    case 4: return filled(QSize(300, 3), Qt::transparent);
    case 5: return filled(QSize(2, 400), Qt::white);
    case 6: return emptyBitmap();
    default: return filled(QSize(50, 50), Qt::green, 0.5);
    }
}

QVariant FuzzBytes::valueOf(int type)
{
    switch (type) {
    case QMetaType::Bool: return flag();
    case QMetaType::Int: return number();
    case QMetaType::UInt: return static_cast<uint>(number());
    case QMetaType::Double: return number() / 7.0;
    case QMetaType::QString: return text();
    case QMetaType::QStringList: return texts();
    case QMetaType::QByteArray: return text().toUtf8();
    case QMetaType::QUrl: return QUrl(text());
    case QMetaType::QColor: return color();
    case QMetaType::QFont: return font();
    case QMetaType::QPalette: return palette();
    case QMetaType::QPixmap: return pixmap();
    case QMetaType::QIcon: return icon();
    case QMetaType::QCursor: return QCursor(static_cast<Qt::CursorShape>(below(Qt::LastCursor + 1)));
    case QMetaType::QKeySequence: return QKeySequence(text());
    case QMetaType::QLocale: return QLocale(flag() ? QStringLiteral("he_IL") : QStringLiteral("de_DE"));
    case QMetaType::QPoint: return pointIn(size());
    case QMetaType::QSize: return size();
    case QMetaType::QRect: return QRect(pointIn(QSize(400, 400)), size());
    default: return QVariant();
    }
}

QByteArray FuzzBytes::rest()
{
    const QByteArray bytes(reinterpret_cast<const char *>(m_at), static_cast<int>(m_end - m_at));
    m_at = m_end;
    return bytes;
}
