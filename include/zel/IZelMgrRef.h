#pragma once

#include <zel/IZelObjectLinkRef.h>

namespace OvZel {

class IZelMgr;

/// The small object by which everything in a document reaches it; it outlives the document while
/// objects of it are still held.
class IZelMgrRef : public IZelObjectLinkRef {
public:
    /// The document, without a reference for the caller; null once it is gone.
    virtual IZelMgr* getMgr() = 0;
    /// Two lower-case letters and a NUL, "en" in a new document.
    virtual const char* getLanguage() const = 0;
    /// Exactly two characters; anything else warns "IZelMgr::setLanguage - Invalid language" and
    /// changes nothing.
    virtual void setLanguage(const char* language) = 0;
    /// The read transform: 16 doubles in row order, row vectors, translation in the last row.
    virtual const double* getMatrix() const = 0;
    /// Copies 16 doubles. The transform becomes active when at least one of them equals the
    /// identity's element at its place; otherwise it is switched off. Null changes nothing.
    virtual void setMatrix(const double* matrix) = 0;
    /// The three transforms work in place on three doubles and do nothing while switched off.
    virtual void transformNormal(double* normal) const = 0;
    /// As transformNormal, for a direction with a length.
    virtual void transformVector(double* vector) const = 0;
    /// As transformNormal, for a place: the translation counts.
    virtual void transformPoint(double* point) const = 0;

protected:
    ~IZelMgrRef() = default;
};

} // namespace OvZel
