/// Where a filler of objects takes its values from.
#pragma once

#include <korva/KORVASchemaTypeI.h>

#include <cstddef>
#include <string>

namespace korva::test {

/// As it stands: texts tell their place, numbers count up, and of several possibilities the first
/// is taken.
class FillerValues {
public:
    virtual ~FillerValues() = default;

    virtual std::string text(const std::string& place) { return place; }
    /// A text of a plain type, such as a date; nobody but a validator looks at its form.
    virtual std::string textOf(KORVASchemaTypeI::ObjectType /*type*/, const std::string& place) {
        return text(place);
    }
    virtual std::string bytes(const std::string& place) { return place; }
    virtual int number() { return ++m_number; }
    virtual float fraction() { return static_cast<float>(++m_number) + 0.5F; }
    virtual bool flag() { return true; }
    /// Whether the next child of a class stays as it is, without a value.
    virtual bool leavesOut() { return false; }
    virtual std::size_t arraySize() { return 2; }
    /// One of `count` possibilities: a number below it.
    virtual std::size_t choose(std::size_t /*count*/) { return 0; }
    /// Whether enumerations without words are made as well, which then stay without a value.
    virtual bool takesEmptyEnums() { return true; }

private:
    int m_number = 0;
};

}  // namespace korva::test
