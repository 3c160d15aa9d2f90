#include "batch/JsonEtude.h"

#include <charconv>
#include <cmath>
#include <ostream>
#include <variant>

namespace {

template <class T> struct Membre {
    const char* nom;
    std::variant<double T::*, std::int16_t T::*, std::string T::*> membre;
};

const Membre<Zone> membresZone[] = {
    {"AngleDepart", &Zone::AngleDepart}, {"AngleFinal", &Zone::AngleFinal},
    {"AngleCame", &Zone::AngleCame},     {"Temps", &Zone::Temps},
    {"RayonDepart", &Zone::RayonDepart}, {"RayonFinal", &Zone::RayonFinal},
    {"NomLoi", &Zone::NomLoi},           {"CoefSymetrie", &Zone::CoefSymetrie},
};

/// A summary value, whatever part of the record it stands in.
struct ValeurResume {
    const char* nom;
    Json (*valeur)();
};

template <auto membre> Json De() {
    return ValeurDe(membre);
}

const ValeurResume membresResume[] = {
    {"NombrePoints", De<&ResultatsEtude::NombrePoints>},
    {"RayonMax", De<&ResultatsEtude::RayonMax>},
    {"RayonMin", De<&ResultatsEtude::RayonMin>},
    {"VitesseRayonMax", De<&ResultatsEtude::VitesseRayonMax>},
    {"VitesseRayonMaxAngle", De<&ResultatsEtude::VitesseRayonMaxAngle>},
    {"AccelRayonMax", De<&ResultatsEtude::AccelRayonMax>},
    {"AccelRayonMaxAngle", De<&ResultatsEtude::AccelRayonMaxAngle>},
    {"LoiCourseMax", De<&DurablesEtude::LoiCourseMax>},
    {"LoiVitesseMax", De<&DurablesEtude::LoiVitesseMax>},
    {"LoiVitesseMaxAngle", De<&DurablesEtude::LoiVitesseMaxAngle>},
    {"LoiAccelMax", De<&DurablesEtude::LoiAccelMax>},
    {"LoiAccelMaxAngle", De<&DurablesEtude::LoiAccelMaxAngle>},
    {"VitesseGaletMax", De<&DurablesEtude::VitesseGaletMax>},
    {"VitesseGaletMoyenne", De<&ResultatsEtude::VitesseGaletMoyenne>},
    {"ForceGaletMax", De<&ResultatsEtude::ForceGaletMax>},
    {"ForceGaletMaxAngle", De<&ResultatsEtude::ForceGaletMaxAngle>},
    {"CoupleMax", De<&ResultatsEtude::CoupleMax>},
    {"CoupleMaxAngle", De<&ResultatsEtude::CoupleMaxAngle>},
    {"AngleTangentMax", De<&ResultatsEtude::AngleTangentMax>},
    {"RayonCourbureMin", De<&ResultatsEtude::RayonCourbureMin>},
    {"InertieBras", De<&ResultatsEtude::InertieBras>},
    {"InertieMasseA", De<&DonneesEtude::InertieMasseA>},
    {"InertieCame", De<&ResultatsEtude::InertieCame>},
    {"MasseCame", De<&ResultatsEtude::MasseCame>},
    {"EpaisseurCame", De<&DonneesEtude::EpaisseurCame>},
    {"CoupleDemarrage", De<&ResultatsEtude::CoupleDemarrage>},
    {"AngleDemarrage", De<&ResultatsEtude::AngleDemarrage>},
};

const Membre<PointLoi> membresLoi[] = {
    {"Course", &PointLoi::Course},
    {"Vitesse", &PointLoi::Vitesse},
    {"Accel", &PointLoi::Accel},
};

const Membre<Point> membresPoint[] = {
    {"Angle", &Point::Angle},
    {"AngleBras", &Point::AngleBras},
    {"Rayon", &Point::Rayon},
    {"VitesseRayon", &Point::VitesseRayon},
    {"AccelRayon", &Point::AccelRayon},
    {"XA", &Point::XA},
    {"YA", &Point::YA},
    {"VxA", &Point::VxA},
    {"VyA", &Point::VyA},
    {"VA", &Point::VA},
    {"AxA", &Point::AxA},
    {"AyA", &Point::AyA},
    {"AA", &Point::AA},
    {"VitesseGalet", &Point::VitesseGalet},
    {"ForceGalet", &Point::ForceGalet},
    {"Couple", &Point::Couple},
};

const Membre<PointProfil> membresProfil[] = {
    {"AngleTangent", &PointProfil::AngleTangent},
    {"DeriveeRayon", &PointProfil::DeriveeRayon},
    {"Derivee2Rayon", &PointProfil::Derivee2Rayon},
    {"RayonCourbure", &PointProfil::RayonCourbure},
    {"XInterieur", &PointProfil::XInterieur},
    {"XInterieur1", &PointProfil::XInterieur1},
    {"XInterieur2", &PointProfil::XInterieur2},
    {"YInterieur", &PointProfil::YInterieur},
    {"YInterieur1", &PointProfil::YInterieur1},
    {"YInterieur2", &PointProfil::YInterieur2},
    {"RayonCourbureInterieur", &PointProfil::RayonCourbureInterieur},
    {"XExterieur", &PointProfil::XExterieur},
    {"XExterieur1", &PointProfil::XExterieur1},
    {"XExterieur2", &PointProfil::XExterieur2},
    {"YExterieur", &PointProfil::YExterieur},
    {"YExterieur1", &PointProfil::YExterieur1},
    {"YExterieur2", &PointProfil::YExterieur2},
    {"RayonCourbureExterieur", &PointProfil::RayonCourbureExterieur},
};

template <class T> Json Valeur(const T& enregistrement, const Membre<T>& membre) {
    return std::visit([&](auto m) { return Json(enregistrement.*m); }, membre.membre);
}

template <class T> Json Objet(const T& enregistrement, std::span<const Membre<T>> membres) {
    Json objet = Json::object();
    for (const auto& membre : membres) objet[membre.nom] = Valeur(enregistrement, membre);
    return objet;
}

template <class T> Json Colonnes(const Tableau<T>& table, std::span<const Membre<T>> membres) {
    Json objet = Json::object();
    for (const auto& membre : membres) {
        Json colonne = Json::array();
        for (const T& ligne : table) colonne.push_back(Valeur(ligne, membre));
        objet[membre.nom] = std::move(colonne);
    }
    return objet;
}

void EcritNombre(std::ostream& sortie, double valeur) {
    if (!std::isfinite(valeur)) {
        sortie << "null";
        return;
    }
    char tampon[32];
    sortie.write(tampon, std::to_chars(tampon, tampon + sizeof tampon, valeur).ptr - tampon);
}

} // namespace

Json JsonDonnees(const TypeEtude& type) {
    Json donnees = Json::object();
    for (const auto& champ : type.champs) donnees[champ.nom] = champ.Nombre(etude.donnees);
    donnees["NombreZones"] = etude.donnees.NombreZones;
    donnees["PointsParDegre"] = etude.donnees.PointsParDegre;
    return donnees;
}

Json JsonZones() {
    Json zones = Json::array();
    for (const Zone& z : etude.donnees.Zones) zones.push_back(Objet<Zone>(z, membresZone));
    return zones;
}

Json JsonResume(bool calcule) {
    Json valeurs = Json::object();
    for (const auto& membre : membresResume) valeurs[membre.nom] = calcule ? membre.valeur() : Json(nullptr);
    return valeurs;
}

Json JsonLoi(const Tableau<PointLoi>& table) {
    return Colonnes<PointLoi>(table, membresLoi);
}
Json JsonPoints() {
    return Colonnes<Point>(etude.resultats.Points, membresPoint);
}
Json JsonProfil() {
    return Colonnes<PointProfil>(etude.resultats.Profil, membresProfil);
}

Json JsonMessages(const DialoguesCollecte& dialogues) {
    Json messages = Json::array();
    for (const auto& boite : dialogues.Boites()) messages.push_back({{"icone", boite.icone}, {"texte", boite.texte}});
    return messages;
}

void EcritJson(std::ostream& sortie, const Json& json) {
    const char* separateur = "";
    if (json.is_object()) {
        sortie << '{';
        for (const auto& [nom, valeur] : json.items()) {
            sortie << separateur << Json(nom).dump() << ':';
            EcritJson(sortie, valeur);
            separateur = ",";
        }
        sortie << '}';
    } else if (json.is_array()) {
        sortie << '[';
        for (const auto& valeur : json) {
            sortie << separateur;
            EcritJson(sortie, valeur);
            separateur = ",";
        }
        sortie << ']';
    } else if (json.is_number_float()) {
        EcritNombre(sortie, json.get<double>());
    } else {
        sortie << json.dump(-1, ' ', false, Json::error_handler_t::replace);
    }
}
