/// The reader of a recorded element.
#pragma once

#include "soap/read/DocumentReceiver.h"
#include "soap/read/ElementRecord.h"
#include "soap/read/ReadingContext.h"
#include "soap/read/References.h"
#include "soap/read/ValueReader.h"

#include <cstddef>
#include <vector>

namespace korva {

/// Reads one record as a value. While it exists, what is found is told at the record's place.
class RecordReader final : public DocumentReceiver, public DocumentPlace {
public:
    /// All must outlive the reader.
    RecordReader(ReadingContext& context, const ElementRecord& record);
    ~RecordReader();

    /// @param declared the type of an element that tells none
    /// What it raises, ValueReader does.
    void read(ObjectType declared);

    /// As ValueReader has it.
    ObjectType type() const { return m_type; }
    void* value() const { return m_result; }

    void startDocument() override {}
    void endDocument() override {}
    void startPrefix(const char* prefix, const char* uri) override;
    void endPrefix(const char* prefix) override;
    void startElement(const Element& element) override;
    void text(std::string_view piece) override;
    void endElement() override;

    DocumentPosition position() const override { return m_record.position(); }
    std::string path() const override { return m_record.path(); }

private:
    ReadingContext& m_context;
    const ElementRecord& m_record;
    const DocumentPlace* const m_place;  ///< of who made this reader
    ValueReader m_value{m_context};
    ObjectType m_declared = KORVASchemaTypeI::e_Unknown;
    ObjectType m_type = KORVASchemaTypeI::e_Unknown;
    void* m_result = nullptr;
    std::vector<const char*> m_prefixes;  ///< that are open
    std::size_t m_depth = 0;
};

}  // namespace korva
