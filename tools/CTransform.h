#pragma once

#include <zel/CZelPoint.h>

#include <optional>

namespace tool {

/// How an instance places a component. The three angles, in radians, turn the component about the
/// fixed X axis, then about Y, then about Z; before that it is scaled, behind that it is moved.
struct CPlacement {
    OvZel::CZelPoint translation;
    OvZel::CZelPoint rotation;
    OvZel::CZelPoint scale{1.0, 1.0, 1.0};
};

/// An affine transform of points, three rows of four numbers; the identity when it is new.
struct CTransform {
    double rows[3][4] = {{1.0, 0.0, 0.0, 0.0}, {0.0, 1.0, 0.0, 0.0}, {0.0, 0.0, 1.0, 0.0}};

    static CTransform of(const CPlacement& placement);

    OvZel::CZelPoint apply(const OvZel::CZelPoint& point) const;
    /// The inner one first, then this one.
    CTransform operator*(const CTransform& inner) const;
    /// Whether it turns polygons inside out.
    bool isMirrored() const { return determinant() < 0.0; }
    bool isFinite() const;
    /// The placement that comes nearest: the same transform if there is no shear. Nothing when an
    /// axis has no length.
    std::optional<CPlacement> nearestPlacement() const;

private:
    double determinant() const;
};

/// As a file keeps it: six decimals, and without a zero below zero.
OvZel::CZelPoint rounded(const OvZel::CZelPoint& point);

} // namespace tool
