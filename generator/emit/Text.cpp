#include "generator/emit/Text.h"

#include <algorithm>

namespace korva::schemac::emit {

namespace {

constexpr std::size_t kColumns = 100;
constexpr std::string_view kComment = "/// ";

// Breaks `text` at blanks into lines of at most `width`, and hands each to `add`.
template <class Add>
void wrap(std::string_view text, std::size_t width, Add add) {
    while (text.size() > width) {
        std::size_t cut = text.rfind(' ', width);
        if (cut == std::string_view::npos) cut = text.find(' ', width);
        if (cut == std::string_view::npos) break;
        add(text.substr(0, cut));
        text.remove_prefix(cut + 1);
    }
    if (!text.empty()) add(text);
}

std::string lines(std::vector<std::string> names, std::string_view before, std::string_view after) {
    std::sort(names.begin(), names.end());
    names.erase(std::unique(names.begin(), names.end()), names.end());
    std::string out;
    for (const std::string& name : names)
        out.append(before).append(name).append(after);
    return out;
}

}  // namespace

std::string sourceName(std::string_view path) {
    std::size_t slash = path.rfind('/');
    if (slash != std::string_view::npos && slash > 0) slash = path.rfind('/', slash - 1);
    return std::string(slash == std::string_view::npos ? path : path.substr(slash + 1));
}

std::string docComment(std::string_view text, std::size_t indent) {
    std::string out;
    const std::size_t width = kColumns - indent - kComment.size();
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size());
        if (end == 0) out.append("///\n");
        wrap(text.substr(0, end), width, [&](std::string_view line) {
            // A backslash at the end would draw the next line into the comment.
            out.append(kComment).append(line).append(line.ends_with('\\') ? ".\n" : "\n");
        });
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return out;
}

std::string sentence(std::string_view text) {
    std::string out(text);
    if (!out.empty() && std::string_view(".!?:;").find(out.back()) == std::string_view::npos) {
        out.push_back('.');
    }
    return out;
}

std::string joined(std::string_view left, std::string_view right) {
    std::string out(left);
    if (!left.empty() && !right.empty()) out.push_back(' ');
    return out.append(right);
}

std::string literal(std::string_view text) {
    std::string out("\"");
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\' || c == '?') {
            out.push_back('\\');
            out.push_back(c);
        } else if (byte >= 0x20 && byte < 0x7F) {
            out.push_back(c);
        } else {
            // Octal, which ends after three digits whatever follows.
            out.push_back('\\');
            for (int shift = 6; shift >= 0; shift -= 3) {
                out.push_back(static_cast<char>('0' + ((byte >> shift) & 7)));
            }
        }
    }
    return out.append("\"");
}

std::string hex(std::int32_t identity) {
    return model::hexOf(identity) + "U";
}

std::string enumeratorValue(std::int32_t identity) {
    return "int(" + hex(identity) + ")";
}

std::string objectType(const model::TypeReference& reference) {
    std::string out = "KORVASchemaTypeI::e";
    if (reference.type != nullptr) return out.append(reference.type->className);
    const types::PlainRow* const plain =
        types::findPlain(static_cast<std::int32_t>(reference.plain));
    return out.append(plain != nullptr ? plain->name : "_Unknown");
}

std::string filled(const std::vector<std::string>& items, std::size_t indent) {
    std::string all;
    for (const std::string& item : items)
        all.append(all.empty() ? "" : " ").append(item);
    std::string out;
    wrap(all, kColumns - indent, [&](std::string_view line) { out.append(line).append("\n"); });
    return out;
}

std::string numbers(const std::vector<std::size_t>& values, std::size_t indent) {
    std::vector<std::string> items;
    items.reserve(values.size());
    for (const std::size_t value : values)
        items.push_back(std::to_string(value) + ",");
    return filled(items, indent);
}

std::string internalIncludes(const std::vector<std::string_view>& paths) {
    std::string out;
    for (const std::string_view path : paths) {
        out.append("#include \"").append(path).append("\"\n");
    }
    return out;
}

std::string includes(std::vector<std::string> classNames) {
    return lines(std::move(classNames), "#include <korva/", ".h>\n");
}

std::string forwards(std::vector<std::string> classNames) {
    return lines(std::move(classNames), "class ", ";\n");
}

}  // namespace korva::schemac::emit
