#include "core/Nombres.h"

#include <algorithm>
#include <charconv>
#include <system_error>

namespace {

/// Decimal digits of a finite magnitude: 0.d1d2d3... times ten to `exposant`; no digit at all for zero.
struct Decimales {
    std::string chiffres;
    int exposant = 0;
};

Decimales DecomposeDecimales(double magnitude) {
    Decimales d;
    if (magnitude == 0.0) return d;
    char tampon[32];
    const auto fin = std::to_chars(tampon, tampon + sizeof tampon, magnitude, std::chars_format::scientific).ptr;
    const auto e = std::find(tampon, fin, 'e');
    for (auto p = tampon; p != e; ++p)
        if (*p != '.') d.chiffres += *p;
    const char* debutExposant = e + 1;
    if (*debutExposant == '+') ++debutExposant;
    std::from_chars(debutExposant, fin, d.exposant);
    d.exposant += 1;
    while (d.chiffres.size() > 1 && d.chiffres.back() == '0') d.chiffres.pop_back();
    return d;
}

/// Rounds half away from zero to `decimales` digits behind the point.
void ArronditDecimales(Decimales& d, int decimales) {
    const int gardes = d.exposant + decimales;
    if (gardes < 0) {
        d = {};
        return;
    }
    if (static_cast<std::size_t>(gardes) >= d.chiffres.size()) return;
    const bool monte = d.chiffres[static_cast<std::size_t>(gardes)] >= '5';
    d.chiffres.resize(static_cast<std::size_t>(gardes));
    if (monte) {
        int i = gardes - 1;
        while (i >= 0 && d.chiffres[static_cast<std::size_t>(i)] == '9')
            d.chiffres[static_cast<std::size_t>(i--)] = '0';
        if (i >= 0) {
            ++d.chiffres[static_cast<std::size_t>(i)];
        } else {
            d.chiffres.insert(d.chiffres.begin(), '1');
            ++d.exposant;
        }
    }
    while (!d.chiffres.empty() && d.chiffres.back() == '0') d.chiffres.pop_back();
    if (d.chiffres.empty()) d.exposant = 0;
}

char ChiffreEn(const Decimales& d, int position) {
    return position >= 0 && static_cast<std::size_t>(position) < d.chiffres.size()
               ? d.chiffres[static_cast<std::size_t>(position)]
               : '0';
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

std::string StrTrim(double valeur) {
    if (!std::isfinite(valeur)) return NonFini(valeur);
    const double magnitude = std::abs(valeur);
    if (magnitude == 0.0) return "0";
    const Decimales d = DecomposeDecimales(magnitude);
    const int nombre = static_cast<int>(d.chiffres.size());
    std::string texte = valeur < 0 ? "-" : "";
    if (magnitude < 1e-15 || magnitude > 1e15) {
        texte += d.chiffres[0];
        if (nombre > 1) texte += "." + d.chiffres.substr(1);
        const int e = d.exposant - 1;
        texte += e < 0 ? "E-" : "E+";
        if (std::abs(e) < 10) texte += '0';
        return texte + std::to_string(std::abs(e));
    }
    for (int i = 0; i < d.exposant; ++i) texte += ChiffreEn(d, i);
    if (nombre > d.exposant) {
        texte += '.';
        for (int i = std::min(d.exposant, 0); i < nombre; ++i)
            if (i >= d.exposant) texte += ChiffreEn(d, i);
    }
    return texte;
}

std::string Str(double valeur) {
    const std::string texte = StrTrim(valeur);
    return texte.front() == '-' ? texte : " " + texte;
}

std::string Format(double valeur, std::string_view masque) {
    if (!std::isfinite(valeur)) return NonFini(valeur);
    const auto point = masque.find('.');
    const std::string_view entiers = masque.substr(0, point);
    const std::string_view decimales = point == std::string_view::npos ? std::string_view{} : masque.substr(point + 1);

    Decimales d = DecomposeDecimales(std::abs(valeur));
    ArronditDecimales(d, static_cast<int>(decimales.size()));

    std::string texte;
    const int entiersMini = static_cast<int>(std::count(entiers.begin(), entiers.end(), '0'));
    for (int i = std::max(entiersMini, d.exposant); i > 0; --i) texte += ChiffreEn(d, d.exposant - i);
    if (point != std::string_view::npos) {
        texte += '.';
        const auto dernierZero = decimales.rfind('0');
        const int decimalesMini = dernierZero == std::string_view::npos ? 0 : static_cast<int>(dernierZero) + 1;
        const int presentes = static_cast<int>(d.chiffres.size()) - d.exposant;
        const int ecrites = d.chiffres.empty() ? decimalesMini : std::max(decimalesMini, presentes);
        for (int i = 0; i < ecrites; ++i) texte += ChiffreEn(d, d.exposant + i);
    }
    // A value that rounds to zero bears no sign.
    return valeur < 0 && !d.chiffres.empty() ? "-" + texte : texte;
}

std::string Trim(std::string_view texte) {
    const auto debut = texte.find_first_not_of(" \t\r\n");
    if (debut == std::string_view::npos) return {};
    return std::string(texte.substr(debut, texte.find_last_not_of(" \t\r\n") - debut + 1));
}
