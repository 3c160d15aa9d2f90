#include "cams/screens/PanneauZones.h"

#include "cylindrical/screens/DoCyl.h"
#include "data/Demarrage.h"
#include "data/TextesSaisie.h"
#include "data/Unites.h"
#include "outils/EcranDeSaisie.h"
#include "planecams/screens/DatoCama.h"

#include <QAbstractItemView>
#include <QScrollBar>
#include <QWheelEvent>

#include <functional>

namespace {

/// A study that was read and calculated, on its data screen.
class SaisieExemple : public EcranDeSaisie<DatoCama> {
protected:
    SaisieExemple() {
        CalculeExemple("Exemple.Ang");
        etude.resultats.ResultatsPrets = Vrai;
        Ouvre();
    }
    std::string LoiMontree() { return S(Le<QComboBox>("Combo1")->currentText()); }
    std::string Remarques() {
        auto* remarques = Le<QLabel>("RemarquesZones");
        return remarques->isVisible() ? S(remarques->text()) : "";
    }
    bool Selectionne(const char* champ) {
        return AFocus(champ) && S(Le<QLineEdit>(champ)->selectedText()) == TexteDe(champ);
    }
};

class SaisieDeuxTours : public EcranDeSaisie<DoCyl> {
protected:
    SaisieDeuxTours() {
        CalculeExemple("Deux-tours.Cyl");
        Ouvre();
    }
    /// Enters the list of laws, and types a name and Return.
    void ChoisitLoi(const char* nom) {
        Le<QWidget>("Combo1")->setFocus(Qt::TabFocusReason);
        Frappe(*ecran, nom);
        Retour(*ecran);
    }
};

/// Looks at the screen while a box is up.
class Guette : public DialoguesScript {
public:
    std::function<void()> pendant;
    void Message(Icone icone, const std::string& texte, const std::string& titre) override {
        DialoguesScript::Message(icone, texte, titre);
        pendant();
    }
};

bool Pareilles(const Zone& a, const Zone& b) {
    return a.AngleDepart == b.AngleDepart && a.AngleFinal == b.AngleFinal && a.AngleCame == b.AngleCame &&
           a.NomLoi == b.NomLoi && a.CoefSymetrie == b.CoefSymetrie;
}

void Roule(QWidget& widget) {
    const QPointF place = widget.rect().center();
    QWheelEvent molette(place, widget.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                        Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &molette);
    LaisseFaire();
}

} // namespace

TEST_F(SaisieExemple, ReturnThroughTheZonesChangesNothing) {
    etude.donnees.Zones[2].NomLoi = "MS_Spe_ 35";
    etude.donnees.Zones[3].NomLoi = "MSC50";
    etude.donnees.Zones[3].CoefSymetrie = 0.3;
    Ouvre();
    const Etude avant = etude;
    CliqueCellule(*ecran, "Grille", 0, 1);
    EXPECT_TRUE(AFocus("Text14"));
    for (int z = 1; z <= 4; ++z) {
        while (!AFocus("Suivante")) {
            Retour(*ecran);
            EXPECT_EQ(LoiMontree(), avant.donnees.Zones[z].NomLoi) << z;
        }
        EXPECT_EQ(Val(TexteDe("Text19")), avant.donnees.Zones[z].CoefSymetrie) << z;
        Retour(*ecran);
    }
    EXPECT_TRUE(AFocus("Calculer"));
    for (int z = 1; z <= 4; ++z) EXPECT_TRUE(Pareilles(etude.donnees.Zones[z], avant.donnees.Zones[z])) << z;
    EXPECT_TRUE(dialogues.boites.empty()) << DerniereBoite();
}

TEST_F(SaisieExemple, DigitsReplaceWhatStandsInAFieldEntered) {
    QTest::mouseClick(Le<QWidget>("Text13"), Qt::LeftButton);
    const std::pair<const char*, const char*> saisies[] = {
        {"Text13", "3"}, {"Text14", "5"}, {"Text15", "25"}, {"Text16", "100"}};
    for (const auto& [champ, texte] : saisies) {
        EXPECT_TRUE(Selectionne(champ)) << champ;
        Frappe(*ecran, texte);
        Retour(*ecran);
        EXPECT_EQ(TexteDe(champ), texte);
    }
    Frappe(*ecran, "MSC50");
    Retour(*ecran, 2);
    EXPECT_TRUE(AFocus("Suivante"));
    auto* points = Le<QComboBox>("Combo2");
    QTest::mouseClick(points->lineEdit(), Qt::LeftButton);
    Frappe(*ecran, "8");
    EXPECT_EQ(points->currentText(), "8");
    Le<QWidget>("Suivante")->setFocus();
    Retour(*ecran);
    EXPECT_EQ(etude.donnees.Zones[1].NomLoi, "MSC50");
    EXPECT_TRUE(Selectionne("Text15")) << "of the next zone";
    EXPECT_EQ(TexteDe("Text14"), "25");
}

TEST_F(SaisieExemple, EscapeClosesAnOpenListAndNothingElse) {
    QSignalSpy quitte(ecran.get(), &DatoCama::Quitte);
    for (const char* champ : {"Text1", "Text13", "Combo2", "Combo1", "Text19", "Calculer"}) {
        Le<QWidget>(champ)->setFocus(Qt::TabFocusReason);
        Touche(*ecran, Qt::Key_Escape);
    }
    CliqueCellule(*ecran, "Grille", 0, 1);
    Retour(*ecran, 3);
    const auto deroule = [this] {
        QTest::keyClick(ecran->focusWidget(), Qt::Key_Down, Qt::AltModifier);
        return QApplication::activePopupWidget()->findChild<QAbstractItemView*>();
    };
    QTest::keyClick(deroule(), Qt::Key_Escape);
    LaisseFaire();
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
    EXPECT_TRUE(AFocus("Combo1"));
    EXPECT_EQ(LoiMontree(), "MS");
    EXPECT_EQ(Le<QComboBox>("Combo1")->lineEdit()->selectedText(), "MS") << "what is typed now takes its place";
    EXPECT_EQ(quitte.count(), 0);
    EXPECT_TRUE(ecran->isVisible());
    // The opened list shows names beside the keys, and the field holds the key.
    auto* vue = deroule();
    EXPECT_GT(vue->viewport()->width(), vue->fontMetrics().horizontalAdvance("MSC15 – " + QTexte(94)));
    QTest::keyClick(vue, Qt::Key_Home);
    QTest::keyClick(vue, Qt::Key_Return);
    LaisseFaire();
    EXPECT_EQ(LoiMontree(), "CYC");
}

TEST_F(SaisieExemple, APendingEditOfAZoneIsTakenOverOrRefused) {
    QSignalSpy calculee(ecran.get(), &SaisieCame::EtudeCalculee);
    CliqueCellule(*ecran, "Grille", 1, 1);
    FrappeDans(*ecran, "Text16", "0");
    Clique("Calculer");
    EXPECT_EQ(DerniereBoite(), Texte(204));
    EXPECT_TRUE(Selectionne("Text16"));
    CliqueCellule(*ecran, "Grille", 3, 1);
    EXPECT_EQ(etude.donnees.ZoneCourante, 2) << "refused here too";
    EXPECT_EQ(calculee.count(), 0);

    Frappe(*ecran, "50");
    CliqueCellule(*ecran, "Grille", 3, 1);
    EXPECT_EQ(etude.donnees.Zones[2].AngleCame, 50) << "taken along to another zone";
    FrappeDans(*ecran, "Text16", "80,5");
    Clique("Calculer");
    EXPECT_EQ(calculee.count(), 1) << DerniereBoite();
    EXPECT_EQ(etude.donnees.Zones[4].AngleCame, 80.5);
    EXPECT_EQ(etude.resultats.NombrePoints, 721);

    FrappeDans(*ecran, "Text13", "2");
    Clique("Calculer");
    EXPECT_EQ(calculee.count(), 1) << "the zones of another number are to be entered first";
}

TEST_F(SaisieExemple, AnEditedEndStartsTheNextZone) {
    EXPECT_EQ(Remarques(), "");
    CliqueCellule(*ecran, "Grille", 0, 1);
    FrappeDans(*ecran, "Text15", "22.5");
    Clique("Suivante");
    EXPECT_EQ(TexteDe("Text14"), "22.5") << "though that zone was entered before";
    EXPECT_EQ(Cellule(1, 1), "22.5");
    EXPECT_EQ(Cellule(1, 4), Cellule(0, 5));
    EXPECT_EQ(Remarques(), "") << "the second zone has become a rise that closes";

    // A start of its own, an angle short of the turn and an end elsewhere are told, without a box.
    CliqueCellule(*ecran, "Grille", 2, 1);
    FrappeDans(*ecran, "Text14", "24");
    CliqueCellule(*ecran, "Grille", 3, 1);
    EXPECT_EQ(Remarques(), Texte(187) + "3 " + Texte(TexteZoneCommence) + " 24 " + Texte(UniteDegres) + " " +
                               Texte(TexteZonePrecedenteFinit) + " 25 " + Texte(UniteDegres) + ".");
    FrappeDans(*ecran, "Text16", "60");
    FrappeDans(*ecran, "Text15", "6.25");
    Clique("Calculer");
    for (const auto& [texte, valeur] :
         {std::pair{TextePasUnTour, " 350 "}, {TexteCameOuverte, " 5 "}, {TexteMouvementFinit, " 6.25 "}})
        EXPECT_NE(Remarques().find(Texte(texte) + valeur), std::string::npos) << Remarques();
    EXPECT_TRUE(dialogues.boites.empty()) << DerniereBoite();
}

TEST_F(SaisieExemple, ARefusedEntryStandsSelected) {
    const struct {
        const char *champ, *texte;
        int message;
    } cas[] = {{"Text1", "1e20", TexteNombreTropGrand},
               {"Text13", "1e20", 206},
               {"Text13", "0", 72},
               {"Text15", "-1e20", TexteNombreTropGrand},
               {"Text18", "1e10", TexteNombreTropGrand}};
    for (const auto& c : cas) {
        FrappeDans(*ecran, c.champ, c.texte);
        Retour(*ecran);
        EXPECT_EQ(DerniereBoite(), Texte(c.message)) << c.champ;
        EXPECT_TRUE(Selectionne(c.champ)) << c.champ << " " << c.texte;
        Touche(*ecran, Qt::Key_Tab); // away without Return: the calculation refuses it as well
        Clique("Calculer");
        EXPECT_EQ(DerniereBoite(), Texte(c.message)) << c.champ;
        EXPECT_TRUE(Selectionne(c.champ)) << c.champ << " " << c.texte;
        Frappe(*ecran, std::string_view(c.champ) == "Text13" ? "4" : "30");
        LaisseFaire();
    }
    QSignalSpy calculee(ecran.get(), &SaisieCame::EtudeCalculee);
    FrappeDans(*ecran, "Text19", "1.5");
    Clique("Suivante");
    EXPECT_EQ(DerniereBoite(), Texte(522) + " 0 <= C <=1");
    EXPECT_TRUE(Selectionne("Text19"));
}

TEST_F(SaisieExemple, TheWheelLeavesListsWithoutFocus) {
    Le<QWidget>("Text1")->setFocus();
    auto *points = Le<QComboBox>("Combo2"), *loi = Le<QComboBox>("Combo1");
    auto* pesanteur = Le<QScrollBar>("HScroll1");
    const int angle = pesanteur->value();
    for (QWidget* widget : std::initializer_list<QWidget*>{points, points->lineEdit(), loi, pesanteur}) Roule(*widget);
    EXPECT_EQ(points->currentText(), "2");
    EXPECT_EQ(LoiMontree(), "MS");
    EXPECT_EQ(pesanteur->value(), angle);
    points->setFocus();
    Roule(*points);
    EXPECT_EQ(points->currentText(), "4");
}

TEST_F(SaisieDeuxTours, ZonesBehindABoxAreInDegrees) {
    const std::string avant = Cellule(0, 1);
    Guette guette;
    std::string pendant;
    guette.pendant = [&] { pendant = Cellule(0, 1); };
    FrappeDans(*ecran, "Text2", "400"); // the turns overlap
    Clique("Calculer");
    ASSERT_FALSE(guette.boites.empty());
    EXPECT_EQ(pendant, avant);
}

TEST_F(SaisieDeuxTours, AfterALawFileTheListsKeepTheNames) {
    FrappeDans(*ecran, "Text6", "1");
    Retour(*ecran);
    QSignalSpy nouvelle(ecran.get(), &FenetreEnfant::Annonce);
    dialogues.fichiers = {Exemple("Aller-retour.Lmi")};
    ChoisitLoi("Fichier");
    ASSERT_EQ(nouvelle.count(), 1);
    EXPECT_EQ(S(nouvelle[0][0].toString()),
              Texte(TexteLoiDeFichierLue) + " Aller-retour.Lmi. " + Texte(TexteLoisAuDemarrage));
    Ouvre();
    EXPECT_GE(Le<QComboBox>("Combo1")->findText("Fichier"), 0);
    ChoisitLoi("MSC50");
    Clique("Suivante");
    EXPECT_EQ(DerniereBoite(), Texte(511) + "\n" + Texte(TexteLoisAuDemarrage));
    EXPECT_TRUE(AFocus("Combo1"));
}
