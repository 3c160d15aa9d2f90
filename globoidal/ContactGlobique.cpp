#include "globoidal/ContactGlobique.h"

#include "core/Etude.h"
#include "core/Nombres.h"
#include "globoidal/UnitesGlobiques.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int BoitierMax = 16, CodeGaletMax = 20;

/// In place of a curvature of 0. It is not below `CourbureMin`, on purpose: such a surface is not taken for flat.
constexpr double CourbureNulle = 1e-5;
/// A curvature below this is flat.
constexpr double CourbureMin = 1e-5;

constexpr double ArrondiCouple = 1e-9;

int LitCode(double code, int maximum) {
    const int entier = Entier16(code);
    if (entier < 0 || entier > maximum) throw ErreurExecution(NumeroErreur::IndiceHorsLimites);
    return entier;
}

double TangentePression(const CameGlobique& came, const PositionGalet& galet, double cosPhi, double r) {
    return Divise(galet.vitesse * r, came.C - r * cosPhi);
}

double Courbure(const PositionGalet& galet, double r, double B, double cosAlpha, double sinPhi) {
    const double c2 = Carre(cosAlpha);
    const double kappa = -cosAlpha / B * (galet.accel * r * c2 / B - (2.0 - c2) * sinPhi);
    return kappa == 0.0 ? CourbureNulle : kappa;
}

} // namespace

double CameGlobique::RayonRacine() const {
    return Rp + H / 2.0 + ProfondeurSousGalet;
}

int CodeBoitier(const MecanismeGlobique& donnees) {
    return LitCode(donnees.Boitier, BoitierMax);
}

CameGlobique LitCame(const MecanismeGlobique& donnees) {
    CodeBoitier(donnees);
    LitCode(donnees.codemi, CodeGaletMax);
    CameGlobique came;
    came.C = donnees.Entraxe / MmParPouce;
    came.R = donnees.RayonTourelle / MmParPouce;
    came.D = donnees.DiametreGalet / MmParPouce;
    came.H = donnees.HauteurGalet / MmParPouce;
    came.Cb = donnees.CapaciteB10 / NewtonParLivre;
    came.Cl = donnees.CapaciteLimite / NewtonParLivre;
    came.precontrainte = donnees.Precontrainte;
    return came;
}

double InertieAvecGalets(const CameGlobique& came, double nombreGalets, double inertieTourelle) {
    return nombreGalets * InertieGaletAcier * Carre(came.D) * came.H *
               (Carre(came.Rp) + Carre(came.D) / 8.0 + Carre(came.H) / 12.0) +
           inertieTourelle;
}

ContactGalet CalculeContact(const CameGlobique& came, const PositionGalet& galet) {
    ContactGalet contact;
    const double cosPhi = std::cos(galet.phi);
    contact.B = came.C - came.Rp * cosPhi;
    contact.alpha = std::atan(TangentePression(came, galet, cosPhi, came.Rp));
    contact.cosAlpha = std::cos(contact.alpha);
    const double demiAngle = came.D * contact.cosAlpha / (2.0 * came.Rp);
    contact.entre = galet.phi + demiAngle;
    contact.sort = galet.phi - demiAngle;
    contact.kappaCentre = Courbure(galet, came.Rp, contact.B, contact.cosAlpha, std::sin(galet.phi));
    // A comparison would let what is no number pass.
    if (!std::isfinite(contact.entre + contact.kappaCentre)) throw ErreurExecution(NumeroErreur::ResultatNonFini);
    return contact;
}

double CourbureRacine(const CameGlobique& came, const PositionGalet& galet) {
    const double r = came.RayonRacine(), cosPhi = std::cos(galet.phi);
    const double cosAlpha = std::cos(std::atan(TangentePression(came, galet, cosPhi, r)));
    return Courbure(galet, r, came.C - r * cosPhi, cosAlpha, std::sin(galet.phi));
}

double MesureNervure(const CameGlobique& came, const PositionGalet& galet, MinimaGlobiques& minima,
                     double* epaisseurCentre) {
    const double cosMilieu = std::cos(galet.phi + came.pas / 2.0);
    double alpha = 0;
    const auto epaisseur = [&](double r) {
        alpha = std::atan(TangentePression(came, galet, cosMilieu, r));
        return came.pas * r * std::cos(alpha) - came.D;
    };
    minima.racine = std::min(minima.racine, epaisseur(came.RayonRacine()));
    minima.tete = std::min(minima.tete, epaisseur(came.RayonTete()));
    const double centre = epaisseur(came.Rp);
    minima.centre = std::min(minima.centre, centre);
    if (epaisseurCentre != nullptr) *epaisseurCentre = centre;
    return alpha;
}

double CoupleNet(double couple, double precontrainte) {
    for (const double net : {0.0, precontrainte, -precontrainte})
        if (std::abs(couple - net) <= ArrondiCouple) return net;
    return couple;
}

ChargeGalet PartageCharge(double couple, double precontrainte, Flancs flancs) {
    if (flancs.Deux()) return {std::abs(couple), couple < 0.0};
    if (flancs.superieur && couple <= precontrainte) return {precontrainte - couple, true};
    if (flancs.inferieur && couple >= -precontrainte) return {couple + precontrainte, false};
    return {};
}

double ChargeContact(const CameGlobique& came, const ContactGalet& contact, double kappaRacine,
                     const ChargeGalet& charge, double tours, RegleCourbure regle, ColonneParcours& colonne,
                     MinimaGlobiques& minima) {
    const double force = charge.couple / came.Rp / contact.cosAlpha;
    colonne.force = std::max(colonne.force, force);
    const double rayonGalet = came.D / 2.0;
    double rho = rayonGalet;
    if (std::abs(contact.kappaCentre) >= CourbureMin) {
        if (charge.couple == 0.0) return force;
        const double kappa = charge.inverse ? -contact.kappaCentre : contact.kappaCentre;
        const double rayonCame = 1.0 / kappa - rayonGalet;
        const double centre = 1.0 / std::abs(kappa), racine = 1.0 / std::abs(kappaRacine);
        if (regle.surLaCame ? rayonCame >= 0.0 : kappa >= 0.0) {
            minima.convexeCentre = std::min(minima.convexeCentre, centre);
            minima.convexeRacine = std::min(minima.convexeRacine, racine);
        }
        if (regle.deuxFlancs) {
            minima.flancsCentre = std::min(minima.flancsCentre, centre);
            minima.flancsRacine = std::min(minima.flancsRacine, racine);
        }
        rho = Divise(rayonCame * rayonGalet, rayonCame + rayonGalet);
    }
    colonne.contact = std::max(colonne.contact, Divise(force, came.H * rho));
    colonne.profondeur = std::max(colonne.profondeur, Divise(force * rho, came.H));
    if (charge.couple != 0.0) {
        colonne.tours += tours;
        colonne.vie += std::pow(force, ExposantVie) * tours;
    }
    return force;
}
