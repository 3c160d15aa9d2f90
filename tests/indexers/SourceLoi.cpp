#include "indexers/SourceLoi.h"

#include "outils/Catalogue.h"

namespace {

class LawSource : public AvecCatalogue {
protected:
    static SourceLoi DuCatalogue(const char* nom) {
        SourceLoi source;
        source.NomLoi = nom;
        source.CoefSymetrie = 0.5;
        return source;
    }
    static SourceLoi Speciale(double a, double b, double c) {
        SourceLoi source = DuCatalogue(NomLoiSpe);
        source.CoefA = a, source.CoefB = b, source.CoefC = c;
        return source;
    }
};

std::string FichierDe(long lignes, bool finie) {
    std::string contenu;
    for (long i = 0; i < lignes; ++i) contenu += StrTrim(0.001 * static_cast<double>(i)) + ";-.5;2\r\n";
    return finie ? contenu + "1;0;0\r\n7;7;7\r\n" : contenu;
}

} // namespace

TEST_F(LawSource, TypedSharesOfACatalogueLawGiveThatLaw) {
    const Loi mt = LoiDeSource(Speciale(0.25, 0.5, 0.25), etude.lois.ListeLois);
    EXPECT_NEAR(mt.Ca, 4.888123762813258, 1e-12);
    EXPECT_NEAR(mt.Cv, 2.0, 1e-12);
    const auto typee = CoursesDeSource(Speciale(0.1875, 0, 0.5625), etude.lois.ListeLois, 91.5);
    const auto rangee = CoursesDeSource(DuCatalogue("MSC25"), etude.lois.ListeLois, 91.5);
    ASSERT_EQ(typee.BorneHaute(), 92); // half to even
    for (long i = 0; i <= 92; ++i) ASSERT_NEAR(typee[i], rangee[i], 1e-12);
    EXPECT_EQ(typee[92], 0.0) << "no i reaches it";
}

TEST_F(LawSource, TenthsThatAddUpLeaveNothing) {
    EXPECT_EQ(CoefD(Speciale(0.3, 0.3, 0.4)), 0.0);
    EXPECT_EQ(CoefD(Speciale(0, 0, 0)), 1.0);
    EXPECT_FALSE(ChercheFauteCoefs(Speciale(0.3, 0.3, 0.4)));
    EXPECT_NEAR(CoursesDeSource(Speciale(0.3, 0.3, 0.4), etude.lois.ListeLois, 30)[15], 0.5, 1e-12);
    for (const auto& refusee : {Speciale(0.5, 0.5, 0.001), Speciale(-0.5, -0.5, 0.5)})
        EXPECT_TRUE(ChercheFauteCoefs(refusee));
}

TEST_F(LawSource, AFileEndsAtItsFirstLiftOfOne) {
    const LoiDeFichier loi = LitLoiCalculateur(FichierDe(61, true));
    EXPECT_EQ(loi.nombre, 61);
    EXPECT_TRUE(loi.finie);
    EXPECT_EQ(loi.lignes[60].Course, 0.06);
    EXPECT_EQ(loi.lignes[62].Course, 0.0) << "not read";
    EXPECT_FALSE(LitLoiCalculateur(FichierDe(723, false)).finie);
    EXPECT_THROW(LitLoiCalculateur(FichierDe(724, false)), ErreurExecution);
}
