#pragma once

#include <zel/IZelBasic.h>

namespace OvZel {

class IZelViewInfo;
class IZelViewOpt;

/// What every kind of view has: how it looks and how it is rendered.
///
/// Views are made and owned by their manager. A pointer from the manager carries no reference: call
/// AddRef to keep the view longer than the manager keeps it. A view is reached through the
/// interface of its kind; its QueryInterface answers to this interface's identifier, too, with the
/// same pointer. AddRef and Release may come from any thread, everything else from one at a time.
///
/// The order of the virtual operations is a promise to compiled clients. Never insert, remove or
/// reorder one; what is new goes into a new interface.
class IZelViewBasic : public IZelBasic {
public:
    static constexpr CZelUUID sIID{"F80CF31F35E5438AB5B31B29044B6A26"};

    /// How the view looks; owned by the view, never null.
    virtual const IZelViewInfo* getViewInfo() const = 0;
    virtual IZelViewInfo* getViewInfo() = 0;
    /// How the view is rendered; owned by the view and good as long as it, never null.
    virtual const IZelViewOpt* getViewOptions() const = 0;
    virtual IZelViewOpt* getViewOptions() = 0;

protected:
    ~IZelViewBasic() override = default;
};

} // namespace OvZel
