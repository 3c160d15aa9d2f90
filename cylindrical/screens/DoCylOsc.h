// The data screen of a cylindrical cam with an oscillating follower: its zones are angles of the arm.
#pragma once

#include "cams/screens/SaisieCame.h"

class DoCylOsc : public SaisieCame {
    Q_OBJECT

public:
    /// Opens on the study record: empty for a new study, filled with the data of one that was read.
    explicit DoCylOsc(QWidget* parent = nullptr);

protected:
    /// Offers the distance a that suits the arm and its swing.
    void ProposeDonnees() override;
};
