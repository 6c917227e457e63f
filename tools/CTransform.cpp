#include "tools/CTransform.h"

#include <cmath>

namespace tool {

using OvZel::CZelPoint;

// A file keeps six decimals of an angle. What is a quarter turn but for these is one, so that what
// stands upright does so exactly.
static double meant(double angle)
{
    constexpr double kQuarter = 1.57079632679489661923;
    const double quarters = std::round(angle / kQuarter) * kQuarter;
    return std::abs(angle - quarters) < 1e-6 ? quarters : angle;
}

CTransform CTransform::of(const CPlacement& placement)
{
    const CZelPoint angle{meant(placement.rotation.x), meant(placement.rotation.y),
                          meant(placement.rotation.z)};
    const double sx = std::sin(angle.x), cx = std::cos(angle.x);
    const double sy = std::sin(angle.y), cy = std::cos(angle.y);
    const double sz = std::sin(angle.z), cz = std::cos(angle.z);
    const CZelPoint& s = placement.scale;
    const CZelPoint& t = placement.translation;
    return {{{cy * cz * s.x, (sx * sy * cz - cx * sz) * s.y, (cx * sy * cz + sx * sz) * s.z, t.x},
             {cy * sz * s.x, (sx * sy * sz + cx * cz) * s.y, (cx * sy * sz - sx * cz) * s.z, t.y},
             {-sy * s.x, sx * cy * s.y, cx * cy * s.z, t.z}}};
}

CZelPoint CTransform::apply(const CZelPoint& point) const
{
    const auto along = [&](const double(&row)[4]) {
        return row[0] * point.x + row[1] * point.y + row[2] * point.z + row[3];
    };
    return {along(rows[0]), along(rows[1]), along(rows[2])};
}

CTransform CTransform::operator*(const CTransform& inner) const
{
    CTransform product;
    for (int row = 0; row < 3; ++row)
        for (int column = 0; column < 4; ++column) {
            double sum = column == 3 ? rows[row][3] : 0.0;
            for (int k = 0; k < 3; ++k)
                sum += rows[row][k] * inner.rows[k][column];
            product.rows[row][column] = sum;
        }
    return product;
}

bool CTransform::isFinite() const
{
    for (const auto& row : rows)
        for (const double number : row)
            if (!std::isfinite(number))
                return false;
    return true;
}

double CTransform::determinant() const
{
    return rows[0][0] * (rows[1][1] * rows[2][2] - rows[1][2] * rows[2][1]) -
           rows[0][1] * (rows[1][0] * rows[2][2] - rows[1][2] * rows[2][0]) +
           rows[0][2] * (rows[1][0] * rows[2][1] - rows[1][1] * rows[2][0]);
}

// Of a matrix whose columns have the length 1.
static CZelPoint anglesOf(const double (&matrix)[3][3])
{
    const double level = std::hypot(matrix[0][0], matrix[1][0]);
    const double y = std::atan2(-matrix[2][0], level);
    if (level < 1e-6) // X and Z turn about one axis: all of it is taken as X
        return {std::atan2(-matrix[1][2], matrix[1][1]), y, 0.0};
    return {std::atan2(matrix[2][1], matrix[2][2]), y, std::atan2(matrix[1][0], matrix[0][0])};
}

std::optional<CPlacement> CTransform::nearestPlacement() const
{
    double scale[3];
    double matrix[3][3];
    for (int column = 0; column < 3; ++column) {
        scale[column] = std::hypot(rows[0][column], rows[1][column], rows[2][column]);
        if (scale[column] == 0.0)
            return std::nullopt;
        if (column == 0 && isMirrored())
            scale[column] = -scale[column];
        for (int row = 0; row < 3; ++row)
            matrix[row][column] = rows[row][column] / scale[column];
    }
    return CPlacement{
        {rows[0][3], rows[1][3], rows[2][3]}, anglesOf(matrix), {scale[0], scale[1], scale[2]}};
}

static double rounded(double number)
{
    return std::round(number * 1e6) / 1e6 + 0.0;
}

CZelPoint rounded(const CZelPoint& point)
{
    return {rounded(point.x), rounded(point.y), rounded(point.z)};
}

} // namespace tool
