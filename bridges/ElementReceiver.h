/// Who takes the elements of an object in the parser's encoding.
#pragma once

#include <xercesc/util/XercesDefs.hpp>

#include <cstddef>

namespace korva {

class EventAttributes;
struct WideName;

/// Is told of elements as a parser would tell. What is handed in lives as long as the call.
class ElementReceiver {
public:
    ElementReceiver() = default;
    ElementReceiver(const ElementReceiver&) = delete;
    ElementReceiver& operator=(const ElementReceiver&) = delete;

    /// The root is about to start, with these attributes behind those that the receiver adds.
    virtual void startRoot(EventAttributes& attributes) = 0;

    virtual void startElement(const WideName& name, const EventAttributes& attributes) = 0;

    /// A piece of the element's text, never an empty one. NUL-terminated.
    virtual void characters(const XMLCh* text, std::size_t length) = 0;

    virtual void endElement(const WideName& name) = 0;

protected:
    ~ElementReceiver() = default;
};

}  // namespace korva
