#include "data/EchecDemarrage.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr const char* langues[] = {"Français", "Español", "English"};

struct SensDemarrage {
    NumeroErreur numero;
    const char* textes[std::size(langues)];
};

constexpr SensDemarrage LesEchecs[] = {
    {NumeroErreur::FichierIntrouvable, {"Fichier introuvable", "Archivo no encontrado", "File not found"}},
    {NumeroErreur::DossierIntrouvable, {"Dossier introuvable", "Carpeta no encontrada", "Folder not found"}},
    {NumeroErreur::AccesFichier, {"Accès refusé", "Acceso denegado", "Access denied"}},
    {NumeroErreur::DisquePlein, {"Disque plein", "Disco lleno", "Disk full"}},
    {NumeroErreur::EntreeSortie,
     {"La lecture ou l'écriture a échoué sur le disque", "La lectura o la escritura ha fallado en el disco",
      "Reading from or writing to the disk has failed"}},
    {NumeroErreur::FinDeFichier, {"Fichier incomplet", "Archivo incompleto", "Incomplete file"}},
    {NumeroErreur::ContenuInvalide, {"Fichier endommagé", "Archivo dañado", "Damaged file"}},
    {NumeroErreur::FichierTropGrand, {"Fichier trop grand", "Archivo demasiado grande", "File too large"}},
    {NumeroErreur::BaseIllisible,
     {"Base de données endommagée ou mot de passe incorrect", "Base de datos dañada o contraseña incorrecta",
      "Damaged database or wrong password"}},
    {NumeroErreur::BaseOccupee,
     {"Fichier occupé par un autre programme", "Archivo ocupado por otro programa", "File in use by another program"}},
};
constexpr SensDemarrage autre{{},
                              {"Velorin ne peut pas démarrer", "Velorin no puede iniciarse", "Velorin cannot start"}};

} // namespace

std::string TexteEchecDemarrage(const ErreurExecution& erreur, const std::string& langue) {
    const auto trouve = std::find_if(std::begin(LesEchecs), std::end(LesEchecs),
                                     [&](const SensDemarrage& s) { return s.numero == erreur.numero; });
    const SensDemarrage& ligne = trouve == std::end(LesEchecs) ? autre : *trouve;
    std::string texte;
    const bool connue = std::find(std::begin(langues), std::end(langues), langue) != std::end(langues);
    for (std::size_t l = 0; l < std::size(langues); ++l)
        if (!connue || langue == langues[l]) texte += (texte.empty() ? "" : "\n") + std::string(ligne.textes[l]);
    return texte + (erreur.detail.empty() ? "" : (connue ? " : " : "\n") + erreur.detail);
}
