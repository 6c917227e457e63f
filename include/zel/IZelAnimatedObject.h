#pragma once

#include <zel/TZelObjectMgr.h>

namespace OvZel {

class IZelZelObjectDefinition;

/// A character from a file of its own with a set of takes: what a definition of the class
/// "AnimatedObject" has of its own.
///
/// It belongs to its definition and goes with it or with its class. The library never opens the
/// file, and no setter clips.
/// The order of the virtual operations is a promise to compiled clients.
class IZelAnimatedObject {
public:
    /// One movement of the character.
    class IZelTake {
    public:
        static constexpr CZelUUID sIID{"4353E20F821A4B559ABED24926213674"};

        /// 0 in a new take, as all its numbers.
        virtual std::int32_t getDuration() const = 0;
        virtual void setDuration(std::int32_t duration) = 0;
        /// Frames a second; 0 in a new take.
        virtual std::int32_t getFPS() const = 0;
        virtual void setFPS(std::int32_t fps) = 0;
        /// Good until it is set again; null counts as the empty text.
        virtual const char* getName() const = 0;
        virtual void setName(const char* name) = 0;
        /// 0.0 in a new take.
        virtual double getZMin() const = 0;
        virtual void setZMin(double zMin) = 0;
        /// 0 predefined, 1 on a path.
        virtual std::int32_t getType() const = 0;
        /// Any other number is stored too, but cannot be saved.
        virtual void setType(std::int32_t type) = 0;
        /// 0.0 in a new take.
        virtual double getZAngle() const = 0;
        virtual void setZAngle(double angle) = 0;

    protected:
        ~IZelTake() = default;
    };

    /// 0 skeleton (the default), 1 FBX.
    virtual std::int32_t getExternalFileType() const = 0;
    /// Any other number is stored too, but cannot be saved.
    virtual void setExternalFileType(std::int32_t type) = 0;
    /// Kept in the definition's object data at once; good until it changes.
    virtual const char* getExternalFile() const = 0;
    /// Null counts as the empty text.
    virtual void setExternalFile(const char* file) = 0;
    /// The takes, empty in a new one; never null, good as long as the character.
    virtual const TZelObjectMgr<IZelTake>* getTakes() const = 0;
    virtual TZelObjectMgr<IZelTake>* getTakes() = 0;
    /// 0 in a new one; its meaning is that of the client that loads the file.
    virtual std::int32_t getIndex() const = 0;
    virtual void setIndex(std::int32_t index) = 0;
    /// The definition itself, without a reference for the caller.
    virtual const IZelZelObjectDefinition* getDefinition() const = 0;
    virtual IZelZelObjectDefinition* getDefinition() = 0;
    /// 16 doubles in row order, the identity in a new one.
    virtual const double* getInitialMatrix() const = 0;
    /// Copies 16 doubles; null changes nothing.
    virtual void setInitialMatrix(const double* matrix) = 0;

protected:
    ~IZelAnimatedObject() = default;
};

} // namespace OvZel
