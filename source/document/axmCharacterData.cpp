#include "axmCharacterData.h"

axmCharacterData::axmCharacterData() = default;
axmCharacterData::~axmCharacterData() = default;
