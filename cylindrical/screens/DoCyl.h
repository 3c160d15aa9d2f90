// The data screen of a cylindrical cam with a translating follower: its zones are heights along the cam's axis.
#pragma once

#include "cams/screens/SaisieCame.h"

class DoCyl : public SaisieCame {
    Q_OBJECT

public:
    /// Opens on the study record: empty for a new study, filled with the data of one that was read.
    explicit DoCyl(QWidget* parent = nullptr);
};
