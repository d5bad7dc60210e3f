#include "tests/bridges/Conversions.h"

#include <xercesc/dom/DOMImplementation.hpp>
#include <xercesc/dom/DOMLSOutput.hpp>
#include <xercesc/dom/DOMLSSerializer.hpp>
#include <xercesc/framework/MemBufFormatTarget.hpp>

#include <stdexcept>

namespace korva::test {

std::string writeOut(const ZELIDOM_Node& node) {
    xercesc::DOMImplementation* const implementation =
        xercesc::DOMImplementation::getImplementation();
    xercesc::DOMLSSerializer* const serializer = implementation->createLSSerializer();
    xercesc::DOMLSOutput* const output = implementation->createLSOutput();
    xercesc::MemBufFormatTarget target;
    output->setByteStream(&target);
    output->setEncoding(u"UTF-8");
    const bool written = serializer->write(node.xercesNode(), output);
    output->release();
    serializer->release();
    if (!written) throw std::runtime_error("the document could not be written out");
    return {reinterpret_cast<const char*>(target.getRawBuffer()), target.getLen()};
}

}  // namespace korva::test
