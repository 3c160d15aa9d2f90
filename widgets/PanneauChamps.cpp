#include "widgets/PanneauChamps.h"

#include "widgets/Chaines.h"
#include "widgets/ChampNombre.h"
#include "widgets/Etiquettes.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>

#include <functional>
#include <stdexcept>
#include <utility>

namespace {

/// Puts label, field and unit into a row of a grid.
void AjouteLigne(QGridLayout& grille, int ligne, QLineEdit& champ, const char* controle, int texte, int unite) {
    auto* etiquette = new QLabel(QTexte(texte));
    champ.setObjectName(QString::fromUtf8(controle));
    etiquette->setObjectName(QStringLiteral("Etiquette") + champ.objectName());
    etiquette->setBuddy(&champ);
    auto* grandeur = FaitUnite(unite == 0 ? QString() : QTexte(unite));
    grandeur->setObjectName(QStringLiteral("Unite") + champ.objectName());
    grille.addWidget(etiquette, ligne, 0);
    grille.addWidget(&champ, ligne, 1, Qt::AlignRight | Qt::AlignVCenter);
    grille.addWidget(grandeur, ligne, 2);
    grille.setColumnStretch(0, 1);
}

/// A plain field whose Return leads on instead of setting off the screen's default button.
class ChampTexte : public QLineEdit {
public:
    explicit ChampTexte(std::function<void()> suivant) : suivant_(std::move(suivant)) {}

protected:
    void keyPressEvent(QKeyEvent* evenement) override {
        if (evenement->key() == Qt::Key_Return || evenement->key() == Qt::Key_Enter) {
            evenement->accept();
            suivant_();
            return;
        }
        QLineEdit::keyPressEvent(evenement);
    }

private:
    std::function<void()> suivant_;
};

} // namespace

ChampNombre* AjouteLigneChamp(QGridLayout& grille, int ligne, const char* controle, int texte, int unite) {
    auto* champ = new ChampNombre;
    AjouteLigne(grille, ligne, *champ, controle, texte, unite);
    return champ;
}

PanneauChamps::PanneauChamps(const char* nom, int titre, std::vector<ChampLie> champs, QWidget* parent)
    : QGroupBox(QTexte(titre), parent), table_(std::move(champs)) {
    setObjectName(QString::fromUtf8(nom));
    auto* grille = new QGridLayout(this);
    for (const ChampLie& ligne : table_) {
        const auto suivant = [this, place = lesChamps_.size()] { Avance(place); };
        QLineEdit* champ = nullptr;
        if (std::holds_alternative<double*>(ligne.valeur)) {
            auto* nombre = new ChampNombre;
            connect(nombre, &ChampNombre::Suivant, this, suivant);
            champ = nombre;
        } else {
            champ = new ChampTexte(suivant);
        }
        AjouteLigne(*grille, grille->rowCount(), *champ, ligne.controle, ligne.texte, ligne.unite);
        lesChamps_.push_back(champ);
    }
    Charge();
}

void PanneauChamps::Avance(std::size_t place) {
    if (place + 1 < lesChamps_.size())
        lesChamps_[place + 1]->setFocus(Qt::TabFocusReason);
    else
        emit Termine();
}

void PanneauChamps::Charge() {
    for (std::size_t i = 0; i < lesChamps_.size(); ++i) {
        if (const auto* nombre = std::get_if<double*>(&table_[i].valeur))
            qobject_cast<ChampNombre*>(lesChamps_[i])->Montre(**nombre);
        else if (const QString texte = Q(*std::get<std::string*>(table_[i].valeur)); texte != lesChamps_[i]->text())
            lesChamps_[i]->setText(texte);
    }
}

bool PanneauChamps::Lit() {
    // Every number is read before the first is kept, so that one that overflows leaves all as they were.
    std::vector<double> nombres;
    for (const auto* champ : lesChamps_) {
        const auto* nombre = qobject_cast<const ChampNombre*>(champ);
        nombres.push_back(nombre == nullptr ? 0.0 : nombre->Valeur());
    }
    bool change = false;
    const auto garde = [&change](auto& ancien, const auto& nouveau) {
        change = change || ancien != nouveau;
        ancien = nouveau;
    };
    for (std::size_t i = 0; i < lesChamps_.size(); ++i) {
        if (const auto* nombre = std::get_if<double*>(&table_[i].valeur))
            garde(**nombre, nombres[i]);
        else
            garde(*std::get<std::string*>(table_[i].valeur), S(lesChamps_[i]->text()));
    }
    return change;
}

ChampNombre* PanneauChamps::Champ(const char* controle) const {
    std::string noms;
    for (QLineEdit* champ : lesChamps_) {
        auto* nombre = qobject_cast<ChampNombre*>(champ);
        if (nombre != nullptr && nombre->objectName() == QLatin1String(controle)) return nombre;
        noms += " " + S(champ->objectName());
    }
    throw std::logic_error(std::string("no number field ") + controle + " among:" + noms);
}

QLineEdit* PanneauChamps::ChampDe(std::string_view nom) const {
    for (std::size_t i = 0; i < lesChamps_.size(); ++i)
        if (nom == table_[i].nom) return lesChamps_[i];
    return nullptr;
}
