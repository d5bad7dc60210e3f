#include "tests/generator/Model.h"

#include "generator/passes/Passes.h"
#include "generator/reader/SchemaReader.h"
#include "generator/reader/WsdlReader.h"
#include "generator/reader/XmlLoader.h"

#include <fstream>
#include <iterator>
#include <stdexcept>

namespace korva::schemac {

std::string testFile(const std::string& name) {
    return KORVA_TEST_SOURCE_DIR "/tests/generator/" + name;
}

std::string contentOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    if (!file.is_open()) throw std::runtime_error("no file " + path);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

Model::Model(const std::vector<std::string>& schemas, const std::vector<std::string>& wsdls) {
    XmlLoader loader;
    SchemaReader schemaReader(loader, schema, diagnostics);
    for (const std::string& path : schemas)
        schemaReader.read(path);
    WsdlReader wsdlReader(loader, schema, diagnostics);
    for (const std::string& path : wsdls)
        wsdlReader.read(path);
    runPasses(schema, diagnostics);
}

const model::Type& Model::type(const std::string& name) const {
    const model::Type* found = schema.find(name);
    if (found == nullptr) throw std::runtime_error("no type " + name);
    return *found;
}

const model::Field& Model::field(const std::string& typeName, const std::string& name) const {
    for (const model::Field& field : type(typeName).fields) {
        if (field.name == name) return field;
    }
    throw std::runtime_error("no field " + name);
}

const model::Message& Model::message(const std::string& name) const {
    for (const model::Message& message : schema.messages) {
        if (message.name == name) return message;
    }
    throw std::runtime_error("no message " + name);
}

Model sample() {
    return {{testFile("sample/sample.xsd")}, {testFile("sample/service.wsdl")}};
}

}  // namespace korva::schemac
