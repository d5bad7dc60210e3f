#include "brim/BRIMOutputStream.h"

BRIMOutputStream::~BRIMOutputStream() = default;

void BRIMOutputStream::close() {}

void BRIMOutputStream::flush() {}
