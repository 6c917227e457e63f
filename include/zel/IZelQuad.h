#pragma once

#include <zel/CZelUUID.h>

#include <cstdint>

namespace OvZel {

/// One triangle of a billboard, part of its owner.
class IZelQuad {
public:
    static constexpr CZelUUID sIID{"FD1EDBBF36464892AD10ACA7F668CD5C"};

    /// Nine doubles, three corners of x, y, z; all zero in a new quad. Good as long as the quad.
    virtual const double* getTriangle() const = 0;
    /// Copies nine doubles; null changes nothing.
    virtual void setTriangle(const double* triangle) = 0;
    /// -1 in a new quad. The file holds the low 32 bits.
    virtual std::int64_t getQuadId() const = 0;
    virtual void setQuadId(std::int64_t id) = 0;

    /// Other names of getQuadId and setQuadId.
    std::int64_t getValue() const { return getQuadId(); }
    void setValue(std::int64_t value) { setQuadId(value); }

protected:
    ~IZelQuad() = default;
};

} // namespace OvZel
