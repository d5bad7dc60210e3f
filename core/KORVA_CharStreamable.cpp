#include "korva/KORVA_CharStreamable.h"

#include <brim/BRIMBase64OutputStream.h>
#include <brim/BRIMOutputStream.h>
#include <korva/KORVA_Streamable.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <cstring>

namespace {

constexpr char textMarker[4] = {'\xFF', '\xFF', '\xFF', '\x00'};
constexpr char contentIdMarker[4] = {'\xFF', '\xFE', '\xFF', '\x00'};

}  // namespace

KORVA_CharStreamable::KORVA_CharStreamable()
    : m_streamable(nullptr), m_data(nullptr), m_next(nullptr), m_base64(false) {
    setIsContentId(false);
}

KORVA_CharStreamable::KORVA_CharStreamable(const char* c) : KORVA_CharStreamable() {
    ZEL_ASSERT(KORVA_CharStreamable::isCharStreamable(c));
    const auto& other = *reinterpret_cast<const KORVA_CharStreamable*>(c);
    std::memcpy(m_marker, other.m_marker, sizeof m_marker);
    m_streamable = other.m_streamable;
    m_data = other.m_data;
    m_next = other.m_next;
    m_base64 = other.m_base64;
}

KORVA_CharStreamable::~KORVA_CharStreamable() {
    m_streamable = nullptr;
    m_data = nullptr;
    m_next = nullptr;
}

bool KORVA_CharStreamable::isCharStreamable(const char* p) {
    // The first byte settles nearly every text; each further byte is read only while all before
    // it agree, so that a short text is not overrun.
    return p != nullptr && p[0] == textMarker[0] &&
           (p[1] == textMarker[1] || p[1] == contentIdMarker[1]) && p[2] == textMarker[2] &&
           p[3] == textMarker[3];
}

void KORVA_CharStreamable::initialize(const KORVA_Streamable& s, bool base64) {
    ZEL_ASSERT(!m_streamable && !m_data);
    m_streamable = &s;
    m_base64 = base64;
}

void KORVA_CharStreamable::initialize(const char* data, bool base64) {
    ZEL_ASSERT(!m_streamable && !m_data);
    ZEL_ASSERT(data);
    m_data = data;
    m_base64 = base64;
}

void KORVA_CharStreamable::append(KORVA_CharStreamable& other) {
    KORVA_CharStreamable* last = this;
    while (last->m_next != nullptr)
        last = last->m_next;
    last->m_next = &other;
}

KORVA_CharStreamable& KORVA_CharStreamable::append(KORVA_CharStreamable* head,
                                                   KORVA_CharStreamable& other) {
    if (head == nullptr) return other;
    head->append(other);
    return *head;
}

void KORVA_CharStreamable::setIsContentId(bool isContentId) {
    std::memcpy(m_marker, isContentId ? contentIdMarker : textMarker, sizeof m_marker);
}

bool KORVA_CharStreamable::getIsContentId() const {
    return std::memcmp(m_marker, contentIdMarker, sizeof m_marker) == 0;
}

BRIMOutputStream& KORVA_CharStreamable::operator>>(BRIMOutputStream& out) const {
    const auto writePieces = [this](BRIMOutputStream& target) {
        for (const KORVA_CharStreamable* piece = this; piece != nullptr; piece = piece->m_next) {
            if (piece->m_streamable != nullptr)
                *piece->m_streamable >> target;
            else if (piece->m_data != nullptr)
                target.write(piece->m_data, std::strlen(piece->m_data));
        }
    };
    ZEL_TRY {
        if (m_base64) {
            BRIMBase64OutputStream encoder;
            encoder.wrap(out);
            writePieces(encoder);
            encoder.close();
        } else {
            writePieces(out);
        }
        return out;
    }
    ZEL_CATCH("KORVA_CharStreamable::operator>>");
}

bool KORVA_CharStreamable::sharesPiecesWith(const KORVA_CharStreamable& other) const {
    return std::memcmp(m_marker, other.m_marker, sizeof m_marker) == 0 &&
           m_streamable == other.m_streamable && m_data == other.m_data && m_next == other.m_next &&
           m_base64 == other.m_base64;
}
