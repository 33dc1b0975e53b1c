#include "Nearest.h"

#include <QVector>

#include <algorithm>

namespace lookcheck {

namespace {

constexpr int letterCost = 8; // that of a letter in the other case is 1
constexpr int longestName = 80;

int costOf(QChar left, QChar right)
{
    if (left == right)
        return 0;
    return left.toCaseFolded() == right.toCaseFolded() ? 1 : letterCost;
}

int distance(const QString &left, const QString &right)
{
    QVector<int> row(right.size() + 1);
    for (int j = 0; j < row.size(); ++j)
        row[j] = j * letterCost;
    for (int i = 0; i < left.size(); ++i) {
        int diagonal = row[0];
        row[0] = (i + 1) * letterCost;
        for (int j = 0; j < right.size(); ++j) {
            const int changed = diagonal + costOf(left.at(i), right.at(j));
            diagonal = row[j + 1];
            row[j + 1] = std::min({changed, row[j] + letterCost, diagonal + letterCost});
        }
    }
    return row.last();
}

} // namespace

QString nearest(const QString &written, const QStringList &names)
{
    if (written.size() > longestName)
        return QString();
    QString best;
    int bestDistance = letterCost * static_cast<int>(written.size()) / 3 + 1; // a third of the letters, at most
    for (const QString &name : names) {
        const int nameDistance = distance(written, name);
        if (nameDistance >= bestDistance)
            continue;
        bestDistance = nameDistance;
        best = name;
    }
    return best;
}

} // namespace lookcheck
