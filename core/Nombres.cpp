#include "core/Nombres.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace {

/// Decimal digits of a finite magnitude: 0.d1d2d3... times ten to `exposant`; no digit at all for zero. The last digit
/// is never 0.
struct Decimales {
    char chiffres[24];
    int nombre = 0;
    int exposant = 0;

    char operator[](int position) const { return position >= 0 && position < nombre ? chiffres[position] : '0'; }
    void OteZerosFinals() {
        while (nombre > 0 && chiffres[nombre - 1] == '0') --nombre;
        if (nombre == 0) exposant = 0;
    }
};

/// The shortest digits that read back to the same double.
Decimales DecomposeDecimales(double magnitude) {
    Decimales d;
    if (magnitude == 0.0) return d;
    char tampon[32];
    const auto fin = std::to_chars(tampon, tampon + sizeof tampon, magnitude, std::chars_format::scientific).ptr;
    const char* p = tampon;
    for (; *p != 'e'; ++p)
        if (*p != '.') d.chiffres[d.nombre++] = *p;
    ++p;
    if (*p == '+') ++p;
    std::from_chars(p, fin, d.exposant);
    ++d.exposant;
    d.OteZerosFinals();
    return d;
}

/// Where a value goes that lies half way between two.
enum class Moitie { LoinDeZero, VersPair };

/// Rounds to `decimales` digits behind the point.
void ArronditDecimales(Decimales& d, int decimales, Moitie moitie = Moitie::LoinDeZero) {
    const int gardes = d.exposant + decimales;
    if (gardes >= d.nombre) return;
    if (gardes < 0) {
        d = {};
        return;
    }
    const bool milieu = d.chiffres[gardes] == '5' && gardes + 1 == d.nombre;
    const bool pair = (d[gardes - 1] - '0') % 2 == 0;
    const bool monte = d.chiffres[gardes] >= '5' && !(milieu && pair && moitie == Moitie::VersPair);
    d.nombre = gardes;
    if (monte) {
        int i = gardes - 1;
        while (i >= 0 && d.chiffres[i] == '9') d.chiffres[i--] = '0';
        if (i >= 0) {
            ++d.chiffres[i];
        } else {
            d.chiffres[0] = '1';
            d.nombre = 1;
            ++d.exposant;
        }
    }
    d.OteZerosFinals();
}

std::string NonFini(double valeur) {
    return std::isnan(valeur) ? "NaN" : valeur < 0 ? "-INF" : "INF";
}

std::size_t LongueurNombre(std::string_view t) {
    const auto chiffre = [&](std::size_t i) { return i < t.size() && t[i] >= '0' && t[i] <= '9'; };
    std::size_t i = 0;
    if (i < t.size() && (t[i] == '+' || t[i] == '-')) ++i;
    std::size_t chiffres = 0;
    for (; chiffre(i); ++i) ++chiffres;
    if (i < t.size() && t[i] == '.')
        for (++i; chiffre(i); ++i) ++chiffres;
    if (chiffres == 0) return 0;
    if (i < t.size() && (t[i] == 'e' || t[i] == 'E')) {
        std::size_t j = i + 1;
        if (j < t.size() && (t[j] == '+' || t[j] == '-')) ++j;
        if (chiffre(j)) {
            while (chiffre(j)) ++j;
            i = j;
        }
    }
    return i;
}

std::string_view SansBlancsEnTete(std::string_view t) {
    while (!t.empty() && (t.front() == ' ' || t.front() == '\t')) t.remove_prefix(1);
    return t;
}

} // namespace

double Val(std::string_view texte) {
    texte = SansBlancsEnTete(texte);
    texte = texte.substr(0, LongueurNombre(texte));
    if (texte.empty()) return 0.0;
    if (texte.front() == '+') texte.remove_prefix(1);
    double valeur = 0.0;
    const auto resultat = std::from_chars(texte.data(), texte.data() + texte.size(), valeur);
    if (resultat.ec == std::errc::result_out_of_range) {
        // Too small reads as 0; too large has no double to stand for it.
        const auto e = texte.find_first_of("eE");
        if (e != std::string_view::npos && e + 1 < texte.size() && texte[e + 1] == '-') return 0.0;
        throw ErreurExecution(NumeroErreur::Depassement);
    }
    return valeur;
}

double ValVirgule(std::string_view texte) {
    std::string copie(texte);
    std::replace(copie.begin(), copie.end(), ',', '.');
    return Val(copie);
}

bool EstNombre(std::string_view texte) {
    const std::string t = Trim(texte);
    return !t.empty() && LongueurNombre(t) == t.size();
}

void AjouteStr(std::string& sortie, double valeur) {
    const double magnitude = std::abs(valeur);
    if (!std::isfinite(valeur)) {
        sortie += NonFini(valeur);
    } else if (magnitude == 0.0) {
        sortie += '0';
    } else if (magnitude >= 1e-15 && magnitude <= 1e15) {
        char tampon[48];
        const char* fin = std::to_chars(tampon, tampon + sizeof tampon, magnitude, std::chars_format::fixed).ptr;
        if (valeur < 0) sortie += '-';
        const char* debut = magnitude < 1.0 ? tampon + 1 : tampon;
        sortie.append(debut, fin);
    } else {
        const Decimales d = DecomposeDecimales(magnitude);
        if (valeur < 0) sortie += '-';
        sortie += d[0];
        if (d.nombre > 1) sortie.append(1, '.').append(d.chiffres + 1, d.chiffres + d.nombre);
        const int e = d.exposant - 1;
        sortie += e < 0 ? "E-" : "E+";
        if (std::abs(e) < 10) sortie += '0';
        sortie += std::to_string(std::abs(e));
    }
}

std::string StrTrim(double valeur) {
    std::string texte;
    AjouteStr(texte, valeur);
    return texte;
}

std::string TexteCourt(double valeur) {
    std::string texte = StrTrim(valeur);
    const auto point = texte.find('.');
    if (point == 0 || (point == 1 && texte.front() == '-')) texte.insert(point, 1, '0');
    return texte;
}

std::string TexteArrondi(double valeur, int decimales) {
    if (!std::isfinite(valeur) || std::abs(valeur) >= 1e15) return TexteCourt(valeur);
    Decimales d = DecomposeDecimales(std::abs(valeur));
    ArronditDecimales(d, decimales, Moitie::VersPair);
    std::string texte = valeur < 0 && d.nombre > 0 ? "-" : "";
    for (int i = std::max(1, d.exposant); i > 0; --i) texte += d[d.exposant - i];
    if (d.nombre > d.exposant) texte += '.';
    for (int i = d.exposant; i < d.nombre; ++i) texte += d[i];
    return texte;
}

std::string Str(double valeur) {
    const std::string texte = StrTrim(valeur);
    return texte.front() == '-' ? texte : " " + texte;
}

void AjouteFormat(std::string& sortie, double valeur, std::string_view masque) {
    if (!std::isfinite(valeur)) {
        sortie += NonFini(valeur);
        return;
    }
    const auto point = masque.find('.');
    const std::string_view entiers = masque.substr(0, point);
    const std::string_view decimales = point == std::string_view::npos ? std::string_view{} : masque.substr(point + 1);

    Decimales d = DecomposeDecimales(std::abs(valeur));
    ArronditDecimales(d, static_cast<int>(decimales.size()));
    // A value that rounds to zero bears no sign.
    if (valeur < 0 && d.nombre > 0) sortie += '-';
    const int entiersMini = static_cast<int>(std::count(entiers.begin(), entiers.end(), '0'));
    for (int i = std::max(entiersMini, d.exposant); i > 0; --i) sortie += d[d.exposant - i];
    if (point == std::string_view::npos) return;
    sortie += '.';
    const int decimalesMini = static_cast<int>(decimales.rfind('0') + 1); // npos + 1 is 0
    const int ecrites = std::max(decimalesMini, d.nombre - d.exposant);
    for (int i = 0; i < ecrites; ++i) sortie += d[d.exposant + i];
}

std::string Format(double valeur, std::string_view masque) {
    std::string texte;
    AjouteFormat(texte, valeur, masque);
    return texte;
}

double Puissance(double base, double exposant) {
    if (base == 0.0 && exposant < 0.0) throw ErreurExecution(NumeroErreur::DivisionParZero);
    if (base < 0.0 && exposant != Int(exposant)) throw ErreurExecution(NumeroErreur::AppelIncorrect);
    return std::pow(base, exposant);
}

std::string Trim(std::string_view texte) {
    const auto debut = texte.find_first_not_of(" \t\r\n");
    if (debut == std::string_view::npos) return {};
    return std::string(texte.substr(debut, texte.find_last_not_of(" \t\r\n") - debut + 1));
}
