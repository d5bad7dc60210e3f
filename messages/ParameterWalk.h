/// How serializers walk the parameters of any message.
#pragma once

#include "core/ChildWalk.h"
#include "core/Descriptor.h"

#include <cstddef>
#include <vector>

class KORVAMessageI;

namespace korva {

/// The type of a parameter: of the stored object if there is one, otherwise the declared type.
ObjectType typeOf(const FieldDescriptor& parameter, const Record& record);

/// Visits the parameters of a message in their order, unset ones too. The result is that of
/// getChildObjectNames with getChildType and getChildObject for each name; generated messages are
/// read by their tables.
class ParameterWalk {
public:
    explicit ParameterWalk(KORVAMessageI& message);

    /// Whether the names are words of the schema, and not what the message says.
    bool isDescribed() const { return m_record != nullptr; }

    /// The next parameter, with the type that getChildType gives; false behind the last.
    bool next(Child& parameter);

private:
    KORVAMessageI& m_message;
    const Record* m_record;  ///< null when the message is asked by name
    const FieldDescriptor* m_next;
    const FieldDescriptor* m_end;

    std::vector<const char*> m_names;
    std::size_t m_position;  ///< in the names
};

}  // namespace korva
