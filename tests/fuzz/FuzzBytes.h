// The bytes of an input, taken as values. Few bytes say much: most values come from short lists of what is awkward.
#pragma once

#include <QByteArray>
#include <QColor>
#include <QFont>
#include <QIcon>
#include <QPalette>
#include <QPixmap>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QVariant>

class FuzzBytes
{
public:
    FuzzBytes(const quint8 *data, std::size_t size) : m_at(data), m_end(data + size) {}

    bool isAtEnd() const { return m_at == m_end; }

    /** The next byte; 0 behind the end. */
    int byte() { return isAtEnd() ? 0 : *m_at++; }

    /** Of 0 to bound - 1; 0 for a bound of 0. */
    int below(int bound) { return bound > 0 ? byte() % bound : 0; }

    bool flag() { return (byte() & 1) != 0; }

    template <typename Value, std::size_t count>
    const Value &of(const Value (&values)[count])
    {
        return values[below(static_cast<int>(count))];
    }

    /** Any number, the ends of its range among them. */
    int number();

    /** Pixels that a widget may really have: 0 to 3000. */
    int length();
    QSize size();

    /** In the area or just outside of it. */
    QPoint pointIn(const QSize &area);

    QString text();
    QStringList texts();
    QColor color();
    QFont font();
    QPalette palette();
    QPixmap pixmap();
    QIcon icon() { return QIcon(pixmap()); }

    /** A value of the type; invalid for a type that has no list here. */
    QVariant valueOf(int type);

    /** The rest. */
    QByteArray rest();

private:
    const quint8 *m_at;
    const quint8 *m_end;
};
