#include "brim/BRIMInputStream.h"

BRIMInputStream::~BRIMInputStream() = default;
