// A look of the test's own, with plain colours, so that a pixel tells which bitmap or key it came from.
#pragma once

#include <QColor>
#include <QDir>
#include <QFile>
#include <QPixmap>
#include <QTemporaryDir>
#include <QTest>

inline QPixmap pixmapOf(const QSize &size, const QColor &color)
{
    QPixmap pixmap(size);
    pixmap.fill(color);
    return pixmap;
}

/** The graphics directory of this process. To be filled before the first use of the look. */
class TestLook
{
public:
    TestLook() { qputenv("ZEL_GRAPHICS_DIR", m_directory.path().toLocal8Bit()); }

    void addBitmap(const QString &name, const QSize &size, const QColor &color) const
    {
        QVERIFY(pixmapOf(size, color).save(m_directory.filePath(name + QStringLiteral(".png"))));
    }

    /** Keys, separated by spaces and without the beginning that all of them share, and their colour. */
    void setColors(const QList<QPair<const char *, QColor>> &colors) const
    {
        QByteArray xml = "<look>";
        for (const auto &color : colors)
            for (const QByteArray &key : QByteArray(color.first).split(' '))
                xml += "<Color Name='UIGCLR_" + key + "'>" + color.second.name().mid(1).toLatin1() + "</Color>";
        QFile file(m_directory.filePath(QStringLiteral("UIGraphics.xml")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(xml + "</look>");
    }

private:
    QTemporaryDir m_directory;
};
