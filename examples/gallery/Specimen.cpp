#include "Specimen.h"

namespace gallery {

std::vector<Specimen> table(const std::vector<Row> &rows, const std::vector<Column> &columns)
{
    std::vector<Specimen> specimens;
    specimens.reserve(rows.size() * columns.size());
    for (const Row &row : rows)
        for (const Column &column : columns)
            specimens.push_back({row.caption, column.caption, row.ground, column.state, row.make, row.isSettled});
    return specimens;
}

std::vector<Specimen> workingControls(const std::vector<Row> &rows)
{
    std::vector<Specimen> specimens;
    specimens.reserve(rows.size());
    for (const Row &row : rows)
        specimens.push_back({QString(), row.caption, row.ground, State::Working, row.make, row.isSettled});
    return specimens;
}

std::vector<Specimen> joined(const std::vector<std::vector<Specimen>> &tables)
{
    std::vector<Specimen> specimens;
    for (const std::vector<Specimen> &part : tables)
        specimens.insert(specimens.end(), part.begin(), part.end());
    return specimens;
}

} // namespace gallery
