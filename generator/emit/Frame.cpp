#include "generator/emit/Frame.h"

#include "generator/emit/Text.h"

namespace korva::schemac::emit {

const char* const coreCheck =
    R"(#if KORVA_CORE_VERSION != 1
#error "This file was made for another version of the core: run korva-schemac again."
#endif
)";

const char* const tarnCheck =
    R"(#if TARN_TABLE_VERSION != 1
#error "This file was made for other tables: run korva-schemac again."
#endif
)";

std::string Frame::classIncludes() const {
    return includes(m_includes);
}

void Frame::finish(const std::vector<std::string>& blocks) {
    std::string text = "// Made by korva-schemac from " + sourceName(m_source) + "; do not edit.\n";
    bool first = true;
    for (const std::string& block : blocks) {
        if (!first && !block.empty()) text += '\n';
        text += block;
        first = false;
    }
    m_files.add(m_path, text + m_content.text());
}

PublicHeaderFrame::PublicHeaderFrame(Files& files, const std::string& className,
                                     std::string_view source, std::string baseInclude)
    : Frame(files, "include/korva/" + className + ".h", source) {
    include(std::move(baseInclude));
}

PublicHeaderFrame::~PublicHeaderFrame() {
    finish({"#pragma once\n", classIncludes(), coreCheck});
}

InternalHeaderFrame::InternalHeaderFrame(Files& files, std::string path, std::string_view source,
                                         std::string_view about,
                                         std::vector<std::string_view> internal)
    : Frame(files, std::move(path), source), m_about(about), m_internal(std::move(internal)) {}

InternalHeaderFrame::~InternalHeaderFrame() {
    finish({"// " + m_about + "\n#pragma once\n", internalIncludes(m_internal), classIncludes(),
            coreCheck});
}

FragmentFrame::FragmentFrame(Files& files, const std::string& name, std::string_view source)
    : Frame(files, "include/korva/" + name, source) {}

FragmentFrame::~FragmentFrame() {
    finish({coreCheck});
}

UnitFrame::UnitFrame(Files& files, std::string path, std::string_view source,
                     std::vector<std::string_view> internal, std::string_view check)
    : Frame(files, std::move(path), source), m_internal(std::move(internal)), m_check(check) {}

UnitFrame::~UnitFrame() {
    finish({internalIncludes(m_internal), classIncludes(), std::string(m_check)});
}

NamespaceScope::NamespaceScope(Printer& printer, std::string_view name)
    : m_printer(printer), m_name(name.empty() ? "namespace" : "namespace " + std::string(name)) {
    m_printer.print("$name$ {\n", {{"name", m_name}});
}

NamespaceScope::~NamespaceScope() {
    m_printer.print("} // $name$\n", {{"name", m_name}});
}

ClassScope::ClassScope(Printer& printer, std::string_view comment, std::string_view words,
                       std::string_view base)
    : m_printer(printer) {
    m_printer.print(R"(
$comment$
class KORVA_EXPORT $words$ : public $base$ {
public:
)",
                    {{"comment", comment}, {"words", words}, {"base", base}});
}

ClassScope::~ClassScope() {
    m_printer.print("};\n");
}

TableScope::TableScope(Printer& printer, std::string_view declaration) : m_printer(printer) {
    m_printer.print("$declaration$[] = {\n", {{"declaration", declaration}});
}

TableScope::~TableScope() {
    m_printer.print("};\n");
}

}  // namespace korva::schemac::emit
