// The data screens as a person reads them over the worked examples: caption, number and unit of every field.
#include "app/Ecrans.h"
#include "outils/DialoguesScript.h"
#include "outils/Ecrans.h"
#include "widgets/FenetreEnfant.h"

#include <QComboBox>
#include <QLabel>

#include <memory>

namespace {

std::string LitEcran(QWidget& ecran) {
    std::string lu;
    for (const QLabel* legende : ecran.findChildren<QLabel*>()) {
        const QWidget* champ = legende->buddy();
        const auto* liste = qobject_cast<const QComboBox*>(champ);
        if (const auto* ligne = qobject_cast<const QLineEdit*>(champ))
            lu += S(legende->text() + " " + ligne->text());
        else if (liste != nullptr)
            lu += S(legende->text() + " " + liste->currentText());
        else
            continue;
        if (const auto* unite = ecran.findChild<QLabel*>("Unite" + champ->objectName())) lu += " " + S(unite->text());
        lu += "; ";
    }
    return lu;
}

} // namespace

TEST(EcransLus, EveryNumberStandsBesideItsCaptionAndUnit) {
    const struct {
        const char *exemple, *ecran, *lu;
    } cas[] = {
        {"Exemple.Ang", "DatoCama",
         "Côte a 100 mm; Côte b 65 mm; Rayon O1 - A 120 mm; Rayon O1 - P 100 mm; Angle P-O1-A 50 degrés; Rayon galet "
         "16 mm; Vitesse Came 300 Tr/min; Masse du bras O1-A 1.2 Kg; Masse du bras O1-P .9 Kg; Epaisseur de la Came 20 "
         "mm; Masses 2.5 Kg; x positif 40 N; y positif -120 N; Angle pesanteur 270 degrés; Nombre de zones 4 ; Points "
         "par degré 2; Angle (a) départ 5 degrés; Angle (a) final 25 degrés; Angle Came 110 degrés; Loi MS; "
         "Coefficient de Symétrie .5 ; "},
        {"Translation.Lin", "DoProfil",
         "Rayon galet 12 mm; Vitesse Came 240 Tr/min; Epaisseur de la Came 16 mm; Masses 1.8 Kg; y positif 60 N; Angle "
         "pesanteur 90 degrés; Nombre de zones 4 ; Points par degré 2; Rayon départ 48 mm; Rayon final 72 mm; Angle "
         "Came 110 degrés; Loi MS; Coefficient de Symétrie .5 ; "},
        {"Barillet.Cyl", "DoCyl",
         "Vitesse Came 120 Tr/min; Rayon galet 8 mm; Diamètre Came 120 mm; Masse entrainée 3.5 Kg; y positif -45 N; "
         "Angle pesanteur 270 degrés; Nombre de zones 4 ; Points par degré 1; Hauteur départ 0 mm; Hauteur finale 40 "
         "mm; Rotation came 130 degrés; Loi MS; Coefficient de Symétrie .5 ; "},
        {"Balancier.Osc", "DoCylOsc",
         "Distance a 110.09 mm; Rayon O1 - P 112 mm; Diamètre Came 125 mm; Rayon galet 9 mm; Vitesse Came 150 Tr/min; "
         "Moment d'Inertie en O1 .06 Kgm²; Couples constants en O1 4 Nm; Nombre de zones 4 ; Points par degré 2; Angle "
         "départ -15 degrés; Angle final 15 degrés; Angle Came 120 degrés; Loi MS; Coefficient de Symétrie .5 ; "},
        {"Conjuguees.Cjg", "CamesConjugeesOscillation",
         "Distance  a 100 mm; Distance  b 60 mm; Angle des bras 74 degrés; Vitesse de rotation 120 Tr/min; Rayon du "
         "bras R1 100 mm; Rayon du galet G1 16 mm; Rayon du bras R2 104 mm; Rayon du galet G2 18 mm; Inertie à "
         "entrainer en O1 "
         ".35 Kgm²; Nombre de zones 4 ; Points par degré 2; Angle départ (Ø) 62 degrés; Angle final (Ø) 74 degrés; "
         "Angle Came 110 degrés; Loi MS; Coefficient de Symétrie .5 ; Angle de rotation 0 degrés; "}};
    const DialoguesScript dialogues;
    for (const auto& c : cas) {
        CalculeExemple(c.exemple);
        const std::unique_ptr<FenetreEnfant> ecran(TrouveEcran(c.ecran)->cree(c.ecran));
        EXPECT_EQ(LitEcran(*ecran), c.lu) << c.exemple;
    }
}
