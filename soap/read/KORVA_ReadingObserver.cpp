#include "korva/KORVA_ReadingObserver.h"

KORVA_ReadingObserver::~KORVA_ReadingObserver() = default;
