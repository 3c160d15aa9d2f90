// The toolkit's own texts: its file dialogue, print preview and menus speak the working language too.
#pragma once

#include <string>

/// Takes the toolkit's texts of a language of the program from now on; English where it has none of that language.
void ChargeTextesQt(const std::string& langue);
