/// A place in an object that waits for the content of an attachment.
#pragma once

#include <korva/KORVASchemaTypeI.h>

#include <cstddef>
#include <string>

/// What an element told that referred to an attachment instead of having content.
class KORVA_EXPORT KORVA_HrefReference {
public:
    using ObjectType = KORVASchemaTypeI::ObjectType;

    /// @param contentId the id behind "cid:"; copied, as `name` is. Null counts as empty for both
    /// @param object what receives the value; not owned
    /// @param name the child's name in `object`, empty for its text
    /// @param type the declared type of the value
    /// @param index what `setChildObject` gave for the value that stands there until then
    /// @throws ZELAssertError `object` is null
    /// @throws ZELOutOfMemoryError no memory is left
    KORVA_HrefReference(const char* contentId, KORVASchemaTypeI* object, const char* name,
                        ObjectType type, std::size_t index);
    virtual ~KORVA_HrefReference();
    KORVA_HrefReference(const KORVA_HrefReference&) = delete;
    KORVA_HrefReference& operator=(const KORVA_HrefReference&) = delete;

    const std::string& getContentId() const { return m_contentId; }
    KORVASchemaTypeI& getObject() const { return *m_obj; }
    const char* getName() const { return m_name.c_str(); }
    ObjectType getType() const { return m_type; }
    std::size_t getIndex() const { return m_index; }

private:
    std::string m_contentId;
    KORVASchemaTypeI* m_obj;
    std::string m_name;
    ObjectType m_type;
    std::size_t m_index;
};
