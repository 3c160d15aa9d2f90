// Text numbers that the capacity calculators share, in one place.
#pragma once

enum TextesIndexeurs {
    TexteLoiSansFin = 843, ///< a law file that no lift of 1 ends
    TexteDMaximum = 997,   ///< followed by the largest share at constant speed, where it is below 1
};
