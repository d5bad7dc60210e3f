#include "korva/KORVA_CharStreamable.h"

#include "types/TextMarker.h"

#include <brim/BRIMBase64OutputStream.h>
#include <brim/BRIMMemoryOutputStream.h>
#include <brim/BRIMOutputStream.h>
#include <korva/KORVA_Streamable.h>
#include <zel/ZELAssert.h>
#include <zel/ZELFrame.h>

#include <cstring>

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
    return types::isMarked(p);
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
    types::mark(m_marker, isContentId);
}

bool KORVA_CharStreamable::getIsContentId() const {
    return types::isContentId(m_marker);
}

BRIMOutputStream& KORVA_CharStreamable::operator>>(BRIMOutputStream& out) const {
    const auto writePieces = [this](BRIMOutputStream& target) {
        for (const KORVA_CharStreamable* piece = this; piece != nullptr; piece = piece->m_next)
            types::writePiece(piece->m_streamable, piece->m_data, target);
    };
    ZEL_TRY {
        return types::writeEncoded<BRIMBase64OutputStream>(out, m_base64, writePieces);
    }
    ZEL_CATCH("KORVA_CharStreamable::operator>>");
}

bool KORVA_CharStreamable::sharesPiecesWith(const KORVA_CharStreamable& other) const {
    return types::sameMarkers(m_marker, other.m_marker) && m_streamable == other.m_streamable &&
           m_data == other.m_data && m_next == other.m_next && m_base64 == other.m_base64;
}

std::string KORVA_CharStreamable::toText(const char* text) {
    ZEL_ASSERT(text);
    ZEL_TRY {
        if (!isCharStreamable(text)) return text;
        BRIMMemoryOutputStream streamed;
        *reinterpret_cast<const KORVA_CharStreamable*>(text) >> streamed;
        return std::string(streamed.str(), streamed.pcount());
    }
    ZEL_CATCH("KORVA_CharStreamable::toText");
}
