#include "fuzz/EnvelopeMutator.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <utility>
#include <vector>

namespace korva::fuzz {

namespace {

/// The names of the schema, one in each line.
constexpr const char* schemaWords[] = {
#include "SchemaWords.inc"
};

constexpr const char* simpleTypes[] = {
    "xs:string",
    "xs:int",
    "xs:integer",
    "xs:float",
    "xs:decimal",
    "xs:boolean",
    "xs:anyType",
    "xs:token",
    "xs:base64Binary",
    "xs:anyURI",
    "xs:dateTime",
    "xs:time",
    "xs:QName",
    "xs:none",
    "SOAP-ENC:Array",
    "string",
    ":",
    "bus:",
    "xs:",
    ":int",
    "bus:a:b",
    "",
    "SOAP-ENV:Envelope",
    "SOAP-ENC:string",
};

constexpr const char* counts[] = {
    "[0]",   "[1]",    "[2]",    "[999999999999]", "[-1]", "[]", "[,]",
    "[2,3]", "[1][1]", "",       "[1000000000]",   "[a]",  "[",  "]",
    "[+1]",  "[ 1 ]",  "[0x10]",
};

constexpr const char* references[] = {
    "cid:a",       "cid:b", "cid:", "CID:a", "cid:%61", "#id0",   "#id1",
    "#id2",        "#",     "",     "id0",   "cid",     "cid: a", "http://bus.korva.example/a",
    "file:///etc",
};

constexpr const char* texts[] = {
    "",
    " ",
    "\n\t ",
    "0",
    "-0",
    "+1",
    "2147483647",
    "2147483648",
    "-2147483649",
    "99999999999999999999",
    "1e3",
    "1D3",
    "1e999",
    "1d-999",
    "1e",
    "1.5.5",
    "NaN",
    "INF",
    "-inf",
    "true",
    "FALSE",
    "1",
    "yes",
    "2004-02-29T23:59:60Z",
    "cid:a",
    "AAAA",
    "A===",
    "QUJD\nREVG",
    "A",
    "//79",
    "&amp;",
    "&lt;a/&gt;",
    "&#65;",
    "&#x1F600;",
    "&#0;",
    "&#1;",
    "&#xD800;",
    "&#x110000;",
    "&none;",
    "&",
    "<![CDATA[]]>",
    "<![CDATA[<a>]]>",
    "]]>",
    "<",
    "\x01",
    "\xC3\xA9",
    "\xC3",
    "\xC0\x80",
    "\xED\xA0\x80",
    "\xF4\x90\x80\x80",
    "\xF5\x80\x80\x80",
    "\xFF\xFF\xFF",
    "\xEF\xBF\xBF",
    "\xE2\x80\xA8",
    "\xF0\x9F\x98\x80",
    "{1}",
    "\\",
    "\"'",
};

constexpr const char* markup[] = {
    "<!-- -->",
    "<!---->",
    "<!-->",
    "<!--->",
    "<!----->",
    "<!-- -- -->",
    "<?a b?>",
    "<?xml version=\"1.0\"?>",
    "<![CDATA[x]]>",
    "<!DOCTYPE a>",
    "<!DOCTYPE a [<!ENTITY b \"c\">]>",
    "<!DOCTYPE a [<!ENTITY % p \"<!ENTITY b 'c'>\">%p;]>",
    "<!DOCTYPE a [<!ENTITY b \"<d/>\"><!ATTLIST a e CDATA \"f\">]>",
    "<!DOCTYPE a SYSTEM \"file:///none\">",
    "&b;",
    "text",
    "\r\n",
    "\xEF\xBB\xBF",
    "<a/>",
    "</a>",
    "<a b='c' b='d'/>",
    "<x:y xmlns:x=\"\"/>",
    "<xmlns:a/>",
    "<a xmlns:xml='urn:x'/>",
};

constexpr const char* beginnings[] = {
    "",
    "<?xml version=\"1.0\"?>",
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>",
    "<?xml version=\"1.1\" encoding=\"UTF-8\"?>",
    "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>",
    "<?xml version=\"1.0\" encoding=\"UTF-16\"?>",
    "<?xml version=\"1.0\" encoding=\"none\"?>",
    "<?xml version=\"1.0\" standalone=\"yes\"?>",
    "\xEF\xBB\xBF",
    " ",
    "<!DOCTYPE a [<!ENTITY b \"cc\"><!ENTITY d \"&b;&b;\">]>",
};

constexpr const char* namespaces[] = {
    "http://schemas.xmlsoap.org/soap/envelope/",
    "http://schemas.xmlsoap.org/soap/encoding/",
    "http://www.w3.org/2001/XMLSchema",
    "http://www.w3.org/2001/XMLSchema-instance",
    "http://www.w3.org/2003/05/soap-envelope",
    "http://www.w3.org/XML/1998/namespace",
    "http://www.w3.org/2000/xmlns/",
    "urn:none",
    "",
};

constexpr const char* attributeNames[] = {
    "xsi:type", "xsi:nil",    "href",        "id",
    "xmlns",    "xmlns:bus",  "xmlns:xsi",   "SOAP-ENC:arrayType",
    "type",     "xml:lang",   "xmlns:xs",    "SOAP-ENV:encodingStyle",
    "nil",      "xmlns:none", "xmlns:xmlns", "SOAP-ENV:mustUnderstand",
    "a",        "xmlns:xml",  "none:a",      "SOAP-ENC:root",
};

constexpr std::string_view smallRequest =
    "<SOAP-ENV:Envelope xmlns:SOAP-ENV=\"http://schemas.xmlsoap.org/soap/envelope/\" "
    "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
    "xmlns:xs=\"http://www.w3.org/2001/XMLSchema\"><SOAP-ENV:Body><ping><a xsi:type=\"xs:string\">b"
    "</a></ping></SOAP-ENV:Body></SOAP-ENV:Envelope>";

bool isNameEnd(char c) noexcept {
    return c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '=' || c == '>' || c == '/' ||
           c == '<' || c == '"' || c == '\'';
}

}  // namespace

/// The document in pieces that can be changed one by one. No expression draws two random numbers in
/// an order that the language leaves open.
class EnvelopeMutator::Document {
public:
    Document(std::string_view text, EnvelopeMutator& random) : m_random(random) { take(text); }

    bool hasElement() const { return !m_elements.empty(); }
    void change(std::size_t longest);
    std::string text() const;

private:
    enum class Kind { start, end, empty, other };

    struct Attribute {
        std::string name;
        std::string value;
        char quote;
    };

    /// A tag, or what stands between tags: text, a comment and the like.
    struct Piece {
        Kind kind = Kind::other;
        std::string text;  ///< the name of a tag
        std::vector<Attribute> attributes;
    };

    using Pieces = std::vector<Piece>;
    struct Span {
        std::size_t begin;
        std::size_t end;
    };

    std::size_t below(std::size_t count) {
        return static_cast<std::size_t>(m_random.next() % count);
    }
    bool oneIn(std::size_t count) { return below(count) == 0; }
    template <class List>
    const auto& any(const List& list) {
        return list[below(std::size(list))];
    }

    void take(std::string_view text);
    static bool takeTag(std::string_view inside, Piece& piece);
    void index();
    Span subtree(std::size_t start) const;
    Pieces copyOf(Span span) const {
        return {m_pieces.begin() + static_cast<std::ptrdiff_t>(span.begin),
                m_pieces.begin() + static_cast<std::ptrdiff_t>(span.end)};
    }
    void insert(std::size_t place, const Pieces& pieces) {
        m_pieces.insert(m_pieces.begin() + static_cast<std::ptrdiff_t>(place), pieces.begin(),
                        pieces.end());
    }
    void erase(Span span) {
        m_pieces.erase(m_pieces.begin() + static_cast<std::ptrdiff_t>(span.begin),
                       m_pieces.begin() + static_cast<std::ptrdiff_t>(span.end));
    }
    std::size_t anyElement() { return m_elements[below(m_elements.size())]; }
    /// Where something may be put: inside the root, mostly.
    std::size_t anyPlace() {
        return oneIn(8) ? below(m_pieces.size() + 1)
                        : m_elements.front() + 1 + below(m_pieces.size() - m_elements.front());
    }
    std::string anyName();
    std::string anyType();
    Attribute* anyAttribute(std::string_view end);
    void setAttribute(Piece& element, std::string name, std::string value);

    void changeElements();
    void changeNames();
    void changeAttributes();
    void changeTypes();
    void changePrefixes();
    void changeCounts();
    void changeReferences();
    void changeTexts();
    void changeMarkup();
    void repeat();

    EnvelopeMutator& m_random;
    Pieces m_pieces;
    std::vector<std::size_t> m_elements;  ///< where start and empty tags are
};

void EnvelopeMutator::Document::take(std::string_view text) {
    const auto takeOther = [&](std::size_t length) {
        length = std::min(length, text.size());
        m_pieces.push_back({Kind::other, std::string(text.substr(0, length)), {}});
        text.remove_prefix(length);
    };
    const auto through = [&](std::string_view end) {
        const std::size_t place = text.find(end);
        return place == std::string_view::npos ? text.size() : place + end.size();
    };
    while (!text.empty()) {
        if (text.front() != '<') {
            takeOther(text.find('<'));
        } else if (text.starts_with("<!--")) {
            takeOther(through("-->"));
        } else if (text.starts_with("<![CDATA[")) {
            takeOther(through("]]>"));
        } else if (text.starts_with("<?")) {
            takeOther(through("?>"));
        } else if (text.starts_with("<!")) {
            const std::size_t bracket = text.find('[');
            takeOther(bracket < text.find('>') ? through("]>") : through(">"));
        } else {
            const std::size_t length = through(">");
            Piece piece;
            if (takeTag(text.substr(1, length - 1), piece)) {
                m_pieces.push_back(std::move(piece));
                text.remove_prefix(length);
            } else {
                takeOther(std::max<std::size_t>(1, std::min(length, text.find('<', 1))));
            }
        }
    }
    index();
}

/// Reads what stands behind a '<', up to the '>'; false if it is no tag.
bool EnvelopeMutator::Document::takeTag(std::string_view inside, Piece& piece) {
    if (inside.empty() || inside.back() != '>') return false;
    inside.remove_suffix(1);
    piece.kind = Kind::start;
    if (inside.starts_with('/')) {
        piece.kind = Kind::end;
        inside.remove_prefix(1);
    } else if (inside.ends_with('/')) {
        piece.kind = Kind::empty;
        inside.remove_suffix(1);
    }
    const auto takeName = [&inside] {
        const auto* const end = std::find_if(inside.begin(), inside.end(), isNameEnd);
        const std::string name(inside.begin(), end);
        inside.remove_prefix(name.size());
        return name;
    };
    const auto skipBlanks = [&inside] {
        inside.remove_prefix(std::min(inside.find_first_not_of(" \t\r\n"), inside.size()));
    };
    piece.text = takeName();
    if (piece.text.empty()) return false;
    for (;;) {
        skipBlanks();
        if (inside.empty()) return true;
        Attribute attribute{takeName(), {}, '"'};
        skipBlanks();
        if (attribute.name.empty() || !inside.starts_with('=')) return false;
        inside.remove_prefix(1);
        skipBlanks();
        if (inside.empty() || (inside.front() != '"' && inside.front() != '\'')) return false;
        attribute.quote = inside.front();
        const std::size_t end = inside.find(attribute.quote, 1);
        if (end == std::string_view::npos) return false;
        attribute.value = inside.substr(1, end - 1);
        inside.remove_prefix(end + 1);
        piece.attributes.push_back(std::move(attribute));
    }
}

void EnvelopeMutator::Document::index() {
    m_elements.clear();
    for (std::size_t i = 0; i < m_pieces.size(); ++i)
        if (m_pieces[i].kind == Kind::start || m_pieces[i].kind == Kind::empty)
            m_elements.push_back(i);
}

EnvelopeMutator::Document::Span EnvelopeMutator::Document::subtree(std::size_t start) const {
    if (m_pieces[start].kind == Kind::empty) return {start, start + 1};
    std::size_t depth = 0;
    for (std::size_t i = start; i < m_pieces.size(); ++i) {
        if (m_pieces[i].kind == Kind::start) ++depth;
        if (m_pieces[i].kind == Kind::end && --depth == 0) return {start, i + 1};
    }
    return {start, m_pieces.size()};
}

std::string EnvelopeMutator::Document::anyName() {
    if (oneIn(2)) return m_pieces[anyElement()].text;
    const std::string word = any(schemaWords);
    if (!oneIn(4)) return word;
    const std::string& name = m_pieces[anyElement()].text;
    return name.substr(0, name.find(':') + 1) + word;
}

std::string EnvelopeMutator::Document::anyType() {
    switch (below(4)) {
        case 0: return any(simpleTypes);
        case 1:
            if (const Attribute* const attribute = anyAttribute("type")) return attribute->value;
            [[fallthrough]];
        default: return std::string("bus:") + any(schemaWords);
    }
}

/// One of the attributes whose name ends so; null if there is none.
EnvelopeMutator::Document::Attribute* EnvelopeMutator::Document::anyAttribute(
    std::string_view end) {
    std::vector<Attribute*> found;
    for (const std::size_t element : m_elements)
        for (Attribute& attribute : m_pieces[element].attributes)
            if (std::string_view(attribute.name).ends_with(end)) found.push_back(&attribute);
    return found.empty() ? nullptr : any(found);
}

void EnvelopeMutator::Document::setAttribute(Piece& element, std::string name, std::string value) {
    for (Attribute& attribute : element.attributes) {
        if (attribute.name != name) continue;
        attribute.value = std::move(value);
        return;
    }
    element.attributes.push_back({std::move(name), std::move(value), '"'});
}

void EnvelopeMutator::Document::changeElements() {
    const std::size_t element = anyElement();
    const Span span = subtree(element);
    switch (below(8)) {
        case 0:  // is gone
            if (element != m_elements.front()) erase(span);
            break;
        case 1:  // comes twice
            insert(span.end, copyOf(span));
            break;
        case 2: {  // comes elsewhere, too
            const Pieces copy = copyOf(span);
            insert(anyPlace(), copy);
            break;
        }
        case 3: {  // moves
            if (element == m_elements.front()) break;
            const Pieces copy = copyOf(span);
            erase(span);
            index();
            insert(anyPlace(), copy);
            break;
        }
        case 4: {  // is wrapped
            const std::string name = anyName();
            insert(span.end, {{Kind::end, name, {}}});
            insert(span.begin, {{Kind::start, name, {}}});
            break;
        }
        case 5:  // loses its tags
            if (m_pieces[element].kind == Kind::empty || m_pieces[span.end - 1].kind != Kind::end)
                break;
            erase({span.end - 1, span.end});
            erase({span.begin, span.begin + 1});
            break;
        case 6:  // loses its content
            if (m_pieces[element].kind == Kind::start && element != m_elements.front() &&
                m_pieces[span.end - 1].kind == Kind::end)
                erase({span.begin + 1, span.end - 1});
            break;
        default: {  // takes the place of another
            const Span other = subtree(anyElement());
            if (other.begin < span.end && span.begin < other.end) break;
            const Pieces copy = copyOf(span);
            const Pieces otherCopy = copyOf(other);
            const Span& first = span.begin < other.begin ? span : other;
            const Span& second = span.begin < other.begin ? other : span;
            erase(second);
            insert(second.begin, span.begin < other.begin ? copy : otherCopy);
            erase(first);
            insert(first.begin, span.begin < other.begin ? otherCopy : copy);
            break;
        }
    }
}

void EnvelopeMutator::Document::changeNames() {
    const std::size_t element = anyElement();
    const Span span = subtree(element);
    const std::string name = anyName();
    m_pieces[element].text = name;
    // Nearly always in both tags.
    if (m_pieces[span.end - 1].kind == Kind::end && !oneIn(16)) m_pieces[span.end - 1].text = name;
}

void EnvelopeMutator::Document::changeAttributes() {
    Piece& element = m_pieces[anyElement()];
    std::vector<Attribute>& attributes = element.attributes;
    switch (below(5)) {
        case 0:
            if (!attributes.empty())
                attributes.erase(attributes.begin() +
                                 static_cast<std::ptrdiff_t>(below(attributes.size())));
            break;
        case 1:
            if (const Attribute* const other = anyAttribute("")) attributes.push_back(*other);
            break;
        case 2:
            if (Attribute* const own = anyAttribute("")) own->name = any(attributeNames);
            break;
        case 3:
            if (Attribute* const own = anyAttribute("")) {
                const std::string text = any(texts);
                if (text.find('<') == std::string::npos) own->value = text;
                if (oneIn(4)) own->quote = own->quote == '"' ? '\'' : '"';
            }
            break;
        default: {
            std::string value;
            if (const Attribute* const other = anyAttribute("")) value = other->value;
            if (oneIn(2)) value = oneIn(2) ? "true" : "1";
            setAttribute(element, any(attributeNames), value);
            break;
        }
    }
}

void EnvelopeMutator::Document::changeTypes() {
    if (Attribute* const type = anyAttribute("type"); type != nullptr && !oneIn(3)) {
        type->value = anyType();
    } else {
        Piece& element = m_pieces[anyElement()];
        setAttribute(element, "xsi:type", anyType());
    }
}

void EnvelopeMutator::Document::changePrefixes() {
    std::vector<Attribute*> declarations;
    for (const std::size_t element : m_elements)
        for (Attribute& attribute : m_pieces[element].attributes)
            if (attribute.name.starts_with("xmlns")) declarations.push_back(&attribute);
    if (declarations.empty() || oneIn(4)) {
        Piece& element = m_pieces[anyElement()];
        const char* const name = oneIn(3) ? "xmlns" : "xmlns:bus";
        setAttribute(element, name, any(namespaces));
        return;
    }
    Attribute& declaration = *any(declarations);
    switch (below(4)) {
        case 0: declaration.value = any(namespaces); break;
        case 1: std::swap(declaration.value, any(declarations)->value); break;
        case 2:  // closer to where it is used
            setAttribute(m_pieces[anyElement()], declaration.name, declaration.value);
            break;
        default: {
            // Another prefix for the same, everywhere.
            if (!declaration.name.starts_with("xmlns:")) break;
            const std::string before = declaration.name.substr(6) + ':';
            const std::string after = oneIn(2) ? "p:" : "q-1.\xC3\xA9:";
            const auto rename = [&](std::string& name) {
                if (name.starts_with(before)) name.replace(0, before.size(), after);
            };
            declaration.name = "xmlns:" + after.substr(0, after.size() - 1);
            for (Piece& piece : m_pieces) {
                if (piece.kind == Kind::other) continue;
                rename(piece.text);
                for (Attribute& attribute : piece.attributes) {
                    rename(attribute.name);
                    rename(attribute.value);
                }
            }
            break;
        }
    }
}

void EnvelopeMutator::Document::changeCounts() {
    Attribute* const count = anyAttribute("arrayType");
    if (count == nullptr) {
        Piece& element = m_pieces[anyElement()];
        setAttribute(element, "xsi:type", "SOAP-ENC:Array");
        const std::string type = anyType();
        setAttribute(element, "SOAP-ENC:arrayType", type + any(counts));
        return;
    }
    std::string& value = count->value;
    if (oneIn(3))
        value.replace(0, std::min(value.find('['), value.size()), anyType());
    else
        value.replace(std::min(value.find('['), value.size()), std::string::npos, any(counts));
}

void EnvelopeMutator::Document::changeReferences() {
    const std::size_t element = anyElement();
    switch (below(4)) {
        case 0: setAttribute(m_pieces[element], "id", "id" + std::to_string(below(3))); break;
        case 1: setAttribute(m_pieces[element], "href", any(references)); break;
        case 2: {  // the form of a peer that writes independent elements
            const Span span = subtree(element);
            if (element == m_elements.front() || m_pieces[span.end - 1].kind == Kind::other) break;
            Pieces copy = copyOf(span);
            const std::string id = "id" + std::to_string(below(3));
            setAttribute(copy.front(), "id", id);
            Piece reference{Kind::empty, copy.front().text, {{"href", '#' + id, '"'}}};
            if (oneIn(4)) copy.front().text = "multiRef";
            if (copy.front().text == "multiRef" && copy.back().kind == Kind::end)
                copy.back().text = "multiRef";
            erase(span);
            insert(span.begin, {reference});
            // Behind the operation, which is before the ends of body and envelope.
            std::size_t place = m_pieces.size();
            for (int ends = 0; place != 0 && ends != 2; --place)
                if (m_pieces[place - 1].kind == Kind::end) ++ends;
            insert(place, copy);
            break;
        }
        default: {  // no content beside a reference
            const Span span = subtree(element);
            setAttribute(m_pieces[element], "href", any(references));
            if (m_pieces[element].kind == Kind::start && element != m_elements.front() &&
                m_pieces[span.end - 1].kind == Kind::end)
                erase({span.begin + 1, span.end - 1});
            break;
        }
    }
}

void EnvelopeMutator::Document::changeTexts() {
    std::vector<std::size_t> places;
    for (std::size_t i = 0; i + 1 < m_pieces.size(); ++i)
        if (m_pieces[i].kind == Kind::start &&
            (m_pieces[i + 1].kind == Kind::other || m_pieces[i + 1].kind == Kind::end))
            places.push_back(i + 1);
    if (places.empty()) return;
    const std::size_t place = any(places);
    if (m_pieces[place].kind == Kind::end) insert(place, {{Kind::other, "", {}}});
    std::string& text = m_pieces[place].text;
    switch (below(4)) {
        case 0: text += any(texts); break;
        case 1: {
            const std::size_t at = below(text.size() + 1);
            text.insert(at, any(texts));
            break;
        }
        case 2: {
            std::string longer = text + any(texts);
            while (!longer.empty() && longer.size() < 2000)
                longer += longer;
            text = longer;
            break;
        }
        default: text = any(texts); break;
    }
}

void EnvelopeMutator::Document::changeMarkup() {
    if (oneIn(3)) {
        // Another beginning of the document.
        while (!m_pieces.empty() && m_pieces.front().kind == Kind::other)
            m_pieces.erase(m_pieces.begin());
        insert(0, {{Kind::other, any(beginnings), {}}});
        if (oneIn(2)) insert(1, {{Kind::other, any(markup), {}}});
        return;
    }
    const std::size_t place = oneIn(4) ? below(m_pieces.size() + 1) : anyPlace();
    insert(place, {{Kind::other, any(markup), {}}});
}

/// The same again and again: elements behind or inside one another, attributes, declarations.
void EnvelopeMutator::Document::repeat() {
    const std::size_t element = anyElement();
    const std::size_t count = std::size_t{1} << below(9);
    switch (below(3)) {
        case 0: {
            const Span span = subtree(element);
            const Pieces copy = copyOf(span);
            Pieces all;
            for (std::size_t i = 0; i < count && all.size() < 4000; ++i)
                all.insert(all.end(), copy.begin(), copy.end());
            insert(span.end, all);
            break;
        }
        case 1: {
            const std::string name = anyName();
            insert(element + 1, Pieces(count, {Kind::end, name, {}}));
            insert(element + 1, Pieces(count, {Kind::start, name, {}}));
            break;
        }
        default: {
            const char* const name = oneIn(2) ? "xmlns:a" : "a";
            for (std::size_t i = 0; i < count; ++i)
                m_pieces[element].attributes.push_back({name + std::to_string(i), "b", '"'});
            break;
        }
    }
}

void EnvelopeMutator::Document::change(std::size_t longest) {
    using Change = void (Document::*)();
    static constexpr std::array<Change, 18> changes = {
        &Document::changeElements,   &Document::changeElements,   &Document::changeElements,
        &Document::changeNames,      &Document::changeNames,      &Document::changeAttributes,
        &Document::changeAttributes, &Document::changeTypes,      &Document::changeTypes,
        &Document::changePrefixes,   &Document::changePrefixes,   &Document::changeCounts,
        &Document::changeReferences, &Document::changeReferences, &Document::changeTexts,
        &Document::changeTexts,      &Document::changeMarkup,     &Document::repeat,
    };
    // What is long enough doesn't grow by many pieces at once.
    const Change change = m_pieces.size() > longest / 8 ? changes[below(17)] : any(changes);
    (this->*change)();
    index();
}

std::string EnvelopeMutator::Document::text() const {
    std::string text;
    for (const Piece& piece : m_pieces) {
        if (piece.kind == Kind::other) {
            text += piece.text;
            continue;
        }
        text += piece.kind == Kind::end ? "</" : "<";
        text += piece.text;
        for (const Attribute& attribute : piece.attributes) {
            text += ' ';
            text += attribute.name;
            text += '=';
            text += attribute.quote;
            text += attribute.value;
            text += attribute.quote;
        }
        text += piece.kind == Kind::empty ? "/>" : ">";
    }
    return text;
}

/// SplitMix64: small, and the same everywhere.
std::uint64_t EnvelopeMutator::next() noexcept {
    m_state += 0x9E3779B97F4A7C15U;
    std::uint64_t mixed = m_state;
    mixed = (mixed ^ (mixed >> 30U)) * 0xBF58476D1CE4E5B9U;
    mixed = (mixed ^ (mixed >> 27U)) * 0x94D049BB133111EBU;
    return mixed ^ (mixed >> 31U);
}

std::string EnvelopeMutator::mutate(std::string_view document, std::size_t longest) {
    Document pieces(document, *this);
    if (!pieces.hasElement()) {
        std::string request(smallRequest);
        if (request.size() > longest) request.resize(longest);
        return request;
    }
    std::uint64_t count = 1;
    while (count < 4 && next() % 2 == 0)
        ++count;
    for (std::uint64_t i = 0; i < count && pieces.hasElement(); ++i)
        pieces.change(longest);
    std::string text = pieces.text();
    if (next() % 16 == 0 && !text.empty()) {
        const std::size_t place = static_cast<std::size_t>(next() % text.size());
        switch (next() % 5) {
            case 0: text[place] = static_cast<char>(next()); break;
            case 1: text.insert(place, 1, static_cast<char>(next())); break;
            case 2: text.erase(place, 1 + static_cast<std::size_t>(next() % 8)); break;
            case 3: text.resize(place); break;
            default:
                // Something behind the end.
                text.append(1, next() % 2 == 0 ? '\0' : '\n').append("<a/>");
                break;
        }
    }
    if (text.size() > longest) text.resize(longest);
    return text;
}

}  // namespace korva::fuzz
