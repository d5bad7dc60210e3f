#include "generator/reader/Reading.h"

#include <algorithm>
#include <charconv>

namespace korva::schemac::reading {

namespace {

std::string ownName(const XmlElement& element) {
    const std::string* name = element.attribute("name");
    return name == nullptr ? element.name : item(element.name, *name);
}

void readNote(const XmlElement& appinfo, Notes allowed, Annotation& into,
              Diagnostics& diagnostics) {
    constexpr std::string_view kOpen = "open ";
    const std::string note = collapsed(appinfo.text);
    if (note == "supplied" && allowed == Notes::Supplied) {
        into.supplied = true;
        return;
    }
    if (note == "open" && (allowed == Notes::Open || allowed == Notes::OpenCount)) {
        into.open = true;
        return;
    }
    if (note.starts_with(kOpen) && allowed == Notes::OpenCount) {
        int count = 0;
        const char* const end = note.data() + note.size();
        const auto [stop, failure] = std::from_chars(note.data() + kOpen.size(), end, count);
        if (failure == std::errc() && stop == end && count > 0) {
            into.openCount = count;
            return;
        }
    }
    std::string_view expected = "no appinfo";
    if (allowed == Notes::Supplied) expected = "\"supplied\"";
    if (allowed == Notes::Open) expected = "\"open\"";
    if (allowed == Notes::OpenCount) expected = "\"open\", alone or with a number above 0";
    diagnostics.error(appinfo.at, describe(appinfo), "unknown note " + inQuotes(note), expected);
}

}  // namespace

std::string describe(const XmlElement& element) {
    std::string out = ownName(element);
    const XmlElement* owner = element.parent;
    while (owner != nullptr && owner->attribute("name") == nullptr)
        owner = owner->parent;
    if (owner != nullptr && owner->parent != nullptr) out.append(" of ").append(ownName(*owner));
    return out;
}

void checkAttributes(const XmlElement& element, std::initializer_list<std::string_view> allowed,
                     Diagnostics& diagnostics) {
    for (const XmlAttribute& attribute : element.attributes) {
        if (!attribute.uri.empty()) continue;
        if (std::find(allowed.begin(), allowed.end(), attribute.name) != allowed.end()) continue;
        std::string expected;
        for (const std::string_view name : allowed) {
            expected.append(expected.empty() ? "one of " : ", ").append(name);
        }
        diagnostics.error(element.at, describe(element),
                          "unknown attribute " + inQuotes(attribute.name),
                          expected.empty() ? "none" : expected);
    }
}

void refuse(const XmlElement& element, std::string_view expected, Diagnostics& diagnostics) {
    diagnostics.error(element.at, describe(element), "it has no place here", expected);
}

std::string required(const XmlElement& element, std::string_view name, Diagnostics& diagnostics) {
    const std::string* value = element.attribute(name);
    if (value != nullptr && !value->empty()) return *value;
    std::string expected = "attribute \"";
    expected.append(name).append("\" with a value");
    diagnostics.error(element.at, describe(element), "it is incomplete", expected);
    return {};
}

bool flag(const XmlElement& element, std::string_view name, bool fallback,
          Diagnostics& diagnostics) {
    const std::string* value = element.attribute(name);
    if (value == nullptr) return fallback;
    if (*value == "true" || *value == "1") return true;
    if (*value != "false" && *value != "0") {
        std::string wrong = "attribute \"";
        wrong.append(name).append("\" is \"").append(*value).append("\"");
        diagnostics.error(element.at, describe(element), wrong, "\"true\" or \"false\"");
    }
    return false;
}

model::QName qualified(const XmlElement& element, const std::string& text,
                       Diagnostics& diagnostics) {
    model::QName out{element.at, text, {}, text};
    std::string prefix;
    if (const std::size_t colon = text.find(':'); colon != std::string::npos) {
        prefix = text.substr(0, colon);
        out.name = text.substr(colon + 1);
    }
    const std::string* uri = element.namespaceOf(prefix);
    if (uri != nullptr) {
        out.uri = *uri;
    } else if (!text.empty()) {
        diagnostics.error(element.at, describe(element),
                          prefix.empty() ? inQuotes(text) + " has no prefix"
                                         : "the prefix of \"" + text + "\" is not declared",
                          "a declared prefix and a name");
    }
    return out;
}

model::TypeReference typeReference(const XmlElement& element, const std::string& text,
                                   Diagnostics& diagnostics) {
    model::QName name = qualified(element, text, diagnostics);
    model::TypeReference out;
    out.at = std::move(name.at);
    out.text = std::move(name.text);
    out.uri = std::move(name.uri);
    out.name = std::move(name.name);
    return out;
}

std::string paragraphs(std::string_view text) {
    std::string out;
    std::string paragraph;
    const auto close = [&] {
        const std::string line = collapsed(paragraph);
        paragraph.clear();
        if (line.empty()) return;
        if (!out.empty()) out += "\n\n";
        out += line;
    };
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        const std::string_view line = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (collapsed(line).empty()) close();
        paragraph.append(line).push_back('\n');
    }
    close();
    return out;
}

void readAnnotation(const XmlElement& annotation, Notes allowed, Annotation& into,
                    Diagnostics& diagnostics) {
    for (const auto& child : annotation.children) {
        if (child->is(kXsd, "documentation")) {
            const std::string text = paragraphs(child->text);
            if (!into.documentation.empty() && !text.empty()) into.documentation += "\n\n";
            into.documentation += text;
        } else if (child->is(kXsd, "appinfo")) {
            readNote(*child, allowed, into, diagnostics);
        } else {
            refuse(*child, "xs:documentation or xs:appinfo", diagnostics);
        }
    }
}

Annotation annotationOf(const XmlElement& element, Notes allowed, Diagnostics& diagnostics) {
    Annotation out;
    for (const auto& child : element.children) {
        if (child->is(kXsd, "annotation")) readAnnotation(*child, allowed, out, diagnostics);
    }
    return out;
}

}  // namespace korva::schemac::reading
