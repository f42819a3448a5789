// The colours of a cell, whatever the palette.
#include "consultation/RegrasCelulas.h"
#include "suite/desktop/look/CellColours.h"

#include <gtest/gtest.h>

#include <set>

namespace {

TEST(Cores, TodaCorSeLeEmQualquerPaleta) {
    namespace cores = pct04618::cores;
    const auto paleta = [](QColor base, QColor texto) {
        QPalette p;
        p.setColor(QPalette::Base, base);
        p.setColor(QPalette::Text, texto);
        return p;
    };
    EXPECT_NEAR(21, suite::desktop::contrast(Qt::black, Qt::white), 0.01);
    EXPECT_NEAR(21, suite::desktop::contrast(Qt::white, Qt::black), 0.01);
    const QPalette paletas[] = {paleta(Qt::white, Qt::black), paleta(QColor(0x1B1E20), QColor(0xFCFCFC)),
                                paleta(Qt::black, Qt::yellow), paleta(QColor(0x808080), Qt::white)};
    for (const auto& p : paletas) {
        std::set<QRgb> fontes;
        for (const auto fonte : {cores::Vermelho, cores::Azul, cores::Roxo, cores::VerdeAzulado, cores::Preto})
            for (const std::optional<host::TCor> fundo :
                 {std::optional<host::TCor>(), std::optional(cores::AzulForte), std::optional(cores::AzulClaro),
                  std::optional(cores::VerdeClaro)}) {
                host::TAparencia aparencia;
                aparencia.Fonte = fonte;
                aparencia.Fundo = fundo;
                const auto vistas = suite::desktop::coloursOf(aparencia, p);
                EXPECT_GE(suite::desktop::contrast(vistas.text, vistas.ground), 4.5);
                if (!fundo)
                    fontes.insert(vistas.text.rgb());
            }
        if (&p != &paletas[3]) { // on middle grey there is room for black and white alone
            EXPECT_EQ(5U, fontes.size()) << "and they stay different";
        }
    }
    const auto claras = suite::desktop::coloursOf({false, cores::Roxo, cores::AzulClaro, false}, paletas[0]);
    EXPECT_EQ(QColor(0x800080), claras.text) << "on paper they are what the rule says";
    EXPECT_EQ(QColor(0xD8E4F8), claras.ground);
    EXPECT_EQ(QColor(0xFCFCFC), suite::desktop::coloursOf({false, cores::Preto, {}, false}, paletas[1]).text)
        << "black is the palette's own";
}

} // namespace
