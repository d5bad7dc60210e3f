/// A numbered message of the library's catalogue.
#pragma once

#include <korva/KORVAExport.h>
#include <zel/ZELMessage.h>

#include <cstdint>

/// A ZELMessage of this library's component; parameters are streamed into it in the catalogue's
/// order.
class KORVA_EXPORT KORVAZELMessage : public ZELMessage {
public:
    explicit KORVAZELMessage(std::uint32_t id);
};
