// Messages with attachments: the value of the Content-Type, an empty line, the content.
#include "fuzz/Target.h"
#include "fuzz/Wire.h"

#include <halyard/HALYARDTKMultipartReader.h>
#include <korva/KORVASOAPMessageIDeserializer.h>
#include <korva/KORVA_PortTypes.h>
#include <korva/KORVA_SpoolingAttachmentContainer.h>

#include <algorithm>

void korva::fuzz::attack(std::string_view input) {
    const std::size_t end = std::min(input.find("\n\n"), input.size());
    const std::string contentType(input.substr(0, end));
    const std::string_view content = input.substr(std::min(end + 2, input.size()));
    BRIMMemoryInputStream stream(content.data(), content.size());
    HALYARDTKMultipartReader message(stream, contentType.c_str());

    KORVA_AttachmentHandler attachments;
    KORVASOAPMessageIDeserializer deserializer;
    deserializer.setAttachmentHandler(&attachments);
    Binding binding;
    deserializer.parse(message.getRoot(), KORVA_PortTypes::all(), binding);
    const bool spools = input.size() % 2 == 0;
    attachments.resolveReferences(message, *binding->getInputMessage().getObjectRegistry(),
                                  spools ? KORVA_SpoolingAttachmentContainer::create : nullptr);
    written(*binding, binding->getInputMessage());
}
