#include "korva/KORVA_RefCount_ConstChar.h"

KORVA_RefCount_ConstChar::KORVA_RefCount_ConstChar(char* text) : m_text(text) {}
KORVA_RefCount_ConstChar::KORVA_RefCount_ConstChar(const char* text) : m_text(text) {}
KORVA_RefCount_ConstChar::~KORVA_RefCount_ConstChar() {
    delete[] m_text;
}
