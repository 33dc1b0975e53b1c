// The look registry: the one source of the colours, fonts and bitmaps of the house look, asked by name.
#pragma once

#include "Platform/Platform.h"
#include "UiGraphicsUse.h"

#include <QColor>
#include <QFont>
#include <QIcon>
#include <QImage>
#include <QMap>
#include <QPixmap>
#include <QString>
#include <QStringList>
#include <QVector>

class QImageReader;
struct LookOverride;

/**
 * The process-wide data behind the lookups below.
 *
 * Nobody has to start it: the first lookup of any kind does, with what the utility library ZelCUtil03 says of the
 * language and the graphics directory. Once ready it does not change until the process ends. Everything runs on the GUI
 * thread. A lookup that fails gives a harmless default and a log record, never an error.
 */
class CUIGraphics
{
public:
    CUIGraphics() = delete;

    /**
     * Runs the start-up once: language and graphics directory, colours, fonts, then the XML files over them.
     *
     * False when the utility library does not load; the next call tries again.
     */
    static bool initializeUIG();

    /** The full path of an existing file or folder of the graphics directory, its language's first; empty if none. */
    static QString UIGGetImagePath(const QString &fileName);

    /**
     * The path with each component under the name that the system shows to the user.
     *
     * The first component, a drive or the root, stays as it is and is not looked at. Of the others, one that the system
     * does not know is left out. A separator at the end is dropped; a blank path gives an empty text.
     */
    static QString UIGetLocalizedPath(const QString &nonLocalizedPath);

    /** UIGGetImagePath for a registry that has started. */
    static QString RetrieveFilePath(const QString &fileName);

    /** What the registry has found, read and missed in this process up to now. Does not start it. */
    static LookUse use();

private:
    friend QColor UIGGetColor(const QString &name);
    friend QFont UIGGetFont(int pixelSize, int weight, bool italic);
    friend QFont UIGGetUnderlinedFont(int pixelSize, int weight, bool italic);
    friend QFont UIGGetTooltipFont(int pixelSize, int weight, bool italic);
    friend QFont UIGGetFont(const QString &name);
    friend QPixmap UIGGetPixmap(const QString &fileName, qreal devicePixelRatio);
    friend QImage UIGGetImage(const QString &fileName);
    friend QIcon UIGGetIcon(const QString &fileName);

    using GetLanguageFunction = const char16_t *(*)();
    using RetrievePathFunction = void (*)(const char16_t *key, const char16_t **value, int reserved);

    /** The fonts that the lookups copy from. */
    struct HeldFonts
    {
        QFont m_standardFont;
        QFont m_tooltipFont;
        QFont m_sansSerifFont;
        QFont m_verdanaFont;
        QFont m_shellDlgFont;
        QFont m_smallFont;
        bool m_bSmallReplacesStandard = false; // for sizes below 14 pixels
    };

    /** A file of the graphics directory; an empty path if there is none. */
    struct FoundFile
    {
        QString path;
        Platform::FileStamp stamp;
    };

    static bool loadUtilityLibrary();
    static void GetCULValues(const QString &key);
    static FoundFile findFile(const QString &fileName);
    static FoundFile findBitmap(const QString &fileName);
    static bool mayLoad(const FoundFile &file, const QImageReader &reader);
    static QPixmap loadedPixmap(const FoundFile &file, qreal ratio);
    template <typename Picture>
    static Picture checked(const Picture &picture, const QString &path);
    static void initializeColorMap();
    static void initializeFontMap();
    static void readXmlFiles();
    static void ReadUIGraphicsXml(const QString &path);
    template <typename Held, typename Convert>
    static int apply(const QVector<LookOverride> &overrides, QMap<QString, Held> &held, Convert convert);
    static void initializeFont();
    static void chooseLanguageFonts(HeldFonts &fonts);
    static QFont fontOfFamily(const QString &familyKey, int pointSize);
    static HeldFonts &heldFonts();
    static QVector<HeldFont> fontsInUse();
    static const QFont &standardFontForSize(int pixelSize);

    static bool m_bInitialized;
    static bool m_bStarting; // a font that is registered on the way makes Qt tell the application, which may ask back
    static GetLanguageFunction m_pGetLanguage;
    static RetrievePathFunction m_pRetrievePath;
    static QString m_sLanguage;
    static QString m_sGraphicsDir;
    static QStringList m_searchedDirs; // for files, the language's first; each with a separator at its end
    static QMap<QString, quint32> m_colorMap;
    static QMap<QString, QString> m_fontMap;
    static LookUse m_use;
};

/** The opaque colour of a UIGCLR_ key. A key that does not exist gives black. */
QColor UIGGetColor(const QString &name);

/**
 * The font for text of the controls, in the user interface language.
 *
 * `pixelSize` in pixels, `weight` on the scale 0 to 99 (50 normal, 75 bold, beyond it its end); -1 leaves either as the
 * registry holds it. Below 14 pixels, and for -1, the private font gives way to the small font. While the registry has
 * not started this is the application's font with the wanted attributes.
 */
QFont UIGGetFont(int pixelSize, int weight, bool italic);

/** UIGGetFont, underlined. */
QFont UIGGetUnderlinedFont(int pixelSize, int weight, bool italic);

/** The font of tool tips; arguments as for UIGGetFont. */
QFont UIGGetTooltipFont(int pixelSize, int weight, bool italic);

/** A copy of a held font by its UIGFONT_ key; the standard font for a key of no held font. */
QFont UIGGetFont(const QString &name);

/**
 * A bitmap of the graphics directory by bare file name; null when the file is not found, no image, or more than 4096
 * pixels wide or high.
 *
 * For a `devicePixelRatio` above 1 a "name@2x.png" beside "name.png" wins; the pixmap then says so by its own ratio.
 */
QPixmap UIGGetPixmap(const QString &fileName, qreal devicePixelRatio = 1.0);

/** The same file as a QImage. */
QImage UIGGetImage(const QString &fileName);

/** The same file as a QIcon; empty when the file is not found. */
QIcon UIGGetIcon(const QString &fileName);
