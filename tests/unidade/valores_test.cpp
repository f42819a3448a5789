#include "base/DataHora.h"
#include "base/Decimal.h"
#include "base/FormatoNumerico.h"
#include "base/Texto.h"
#include "host/Utilidades.h"

#include <gtest/gtest.h>

#include <limits>

using base::TDataHora;
using base::TDecimal;
using base::TMoeda;

TEST(Decimal, TextoEhExatoEReversivel) {
    constexpr auto Maior = std::numeric_limits<std::int64_t>::max();
    constexpr auto Menor = std::numeric_limits<std::int64_t>::min();
    for (const auto& [valor, texto] : {std::pair{TDecimal{1250, 2}, "12.50"},
                                       {TDecimal{-5, 2}, "-0.05"},
                                       {TDecimal{0, 6}, "0.000000"},
                                       {TDecimal{7, 0}, "7"},
                                       {TDecimal{Maior, 6}, "9223372036854.775807"},
                                       {TDecimal{Menor, 2}, "-92233720368547758.08"}}) {
        EXPECT_EQ(texto, valor.Texto());
        const auto lido = TDecimal::De(texto);
        ASSERT_TRUE(lido) << texto;
        EXPECT_EQ(valor.Unidades, lido->Unidades);
        EXPECT_EQ(valor.Escala, lido->Escala);
    }
    for (const char* texto : {"", "-", ".", "1.2.3", "1,5", "12a", "9223372036854775808", "1e3"})
        EXPECT_FALSE(TDecimal::De(texto)) << texto;
}

TEST(Decimal, EscalaArredondaComoOBanco) {
    EXPECT_EQ(13, (TDecimal{125, 2}.ComEscala(1).Unidades));
    EXPECT_EQ(-13, (TDecimal{-125, 2}.ComEscala(1).Unidades));
    EXPECT_EQ(12, (TDecimal{124, 2}.ComEscala(1).Unidades));
    EXPECT_EQ(1'250'000, (TDecimal{125, 2}.ComEscala(6).Unidades));
    EXPECT_THROW((TDecimal{std::numeric_limits<std::int64_t>::max(), 0}.ComEscala(1)), std::overflow_error);
    EXPECT_TRUE((TDecimal{10, 1} == TDecimal{100, 2}));
    EXPECT_TRUE((TDecimal{-1, 18} < TDecimal{std::numeric_limits<std::int64_t>::max(), 0}));
}

TEST(Moeda, QuatroCasasComEmpateParaOPar) {
    EXPECT_EQ("0.0002", TMoeda(TDecimal{25, 5}).Decimal().Texto());
    EXPECT_EQ("0.0004", TMoeda(TDecimal{35, 5}).Decimal().Texto());
    EXPECT_EQ("-0.0002", TMoeda(TDecimal{-25, 5}).Decimal().Texto());
    EXPECT_EQ("0.0003", TMoeda(TDecimal{251, 6}).Decimal().Texto());
    const TMoeda A(TDecimal{10001, 2});
    const TMoeda B(TDecimal{-3, 2});
    EXPECT_EQ("99.9800", (A + B).Decimal().Texto());
    EXPECT_EQ("100.0400", (A - B).Decimal().Texto());
    const TMoeda Cheia(TDecimal{std::numeric_limits<std::int64_t>::max(), 4});
    EXPECT_THROW(Cheia + A, std::overflow_error);
}

TEST(FormatoNumerico, MostraComoUmLeitorBrasileiroEspera) {
    using base::FormatarNumero;
    EXPECT_EQ("1.234.567,50", FormatarNumero({12345675, 1}, ",0.00"));
    EXPECT_EQ("-999,00", FormatarNumero({-999, 0}, ",0.00"));
    EXPECT_EQ("-1.000,00", FormatarNumero({-1000, 0}, ",0.00"));
    EXPECT_EQ("0,05", FormatarNumero({5, 2}, ",0.00"));
    EXPECT_EQ("0,0000", FormatarNumero({-4, 6}, ",0.0000"));
    EXPECT_EQ("00042", FormatarNumero({42, 0}, "00000"));
    EXPECT_EQ("(1.234,50)", FormatarNumero({-12345, 1}, ",0.00;(,0.00)"));
    EXPECT_EQ("-12,00", FormatarNumero({-12, 0}, ",0.00;"));
    EXPECT_EQ("1.234,500", FormatarNumero({1234500, 3}, ""));
    EXPECT_EQ("1234,5", FormatarNumero({12345, 1}, "0.0"));
}

TEST(DataHora, CalendarioETextos) {
    const auto Data = TDataHora::De(2024, 2, 29);
    ASSERT_TRUE(Data);
    EXPECT_EQ("29/02/2024", Data->Texto());
    EXPECT_EQ("2024-02-29", Data->TextoIso());
    EXPECT_EQ(*Data, TDataHora::DeTexto("29/02/2024"));
    EXPECT_EQ(*Data, TDataHora::De(2024, 2, 10)->UltimoDiaDoMes());
    EXPECT_EQ("28/02/1900", TDataHora::De(1900, 2, 1)->UltimoDiaDoMes().Texto());
    const auto ComHora = TDataHora::DeDecimos(Data->Decimos() + 378'000'001);
    EXPECT_EQ("2024-02-29 10:30:00.0001", ComHora.TextoIso());
    EXPECT_EQ(*Data, ComHora.SemHora());
    EXPECT_EQ("01/01/1858", TDataHora::De(1858, 1, 1)->Texto());
    for (const char* texto : {"", "30/02/2024", "1/1/2024", "00/01/2024", "01/13/2024", "29-02-2024", "+1/01/2024",
                              "01/01/0000", "aa/bb/cccc"})
        EXPECT_FALSE(TDataHora::DeTexto(texto)) << texto;
}

TEST(EspacoEntreDatas, ContaMesesTocadosEAnosCompletos) {
    const auto Espaco = [](const char* inicio, const char* fim, const char* unidade, const char* modo) {
        return host::GUtilGeral.EspacoEntreDatas(*TDataHora::DeTexto(inicio), *TDataHora::DeTexto(fim), unidade, modo);
    };
    EXPECT_EQ(0, Espaco("01/01/2024", "31/01/2024", "MESES", "PARCIAL"));
    EXPECT_EQ(1, Espaco("31/01/2024", "01/02/2024", "MESES", "PARCIAL"));
    EXPECT_EQ(12, Espaco("01/12/2023", "31/12/2024", "MESES", "PARCIAL"));
    EXPECT_EQ(0, Espaco("01/01/2024", "31/12/2024", "ANOS", "INTEGRAL"));
    EXPECT_EQ(1, Espaco("01/01/2024", "01/01/2025", "ANOS", "INTEGRAL"));
    EXPECT_EQ(12, Espaco("01/01/2012", "31/12/2024", "ANOS", "INTEGRAL"));
    EXPECT_EQ(13, Espaco("01/01/2012", "31/01/2025", "ANOS", "INTEGRAL"));
    EXPECT_THROW(Espaco("01/01/2024", "01/01/2025", "DIAS", "INTEGRAL"), std::logic_error);
}

TEST(CombinacaoBinaria, SomaEProcura) {
    EXPECT_EQ(5, host::TZTUtilsMatematica::SomarCombinacaoBinaria({true, false, true}));
    EXPECT_TRUE(host::TZTUtilsMatematica::EstahNaCombinacaoBinaria(5, 4));
    EXPECT_FALSE(host::TZTUtilsMatematica::EstahNaCombinacaoBinaria(5, 2));
}

TEST(Format, ExigeQueMarcasEArgumentosSeCorrespondam) {
    using base::Format;
    EXPECT_EQ("a=7 b=x a=7 100%", Format("a=%0:d b=%1:s a=%0:d 100%%", {std::int64_t{7}, "x"}));
    EXPECT_EQ("IN (1,2) = 3", Format("IN (%s) = %d", {"1,2", std::int64_t{3}}));
    EXPECT_EQ("LIKE '1.%'", Format("LIKE %s", {"'1.%'"})) << "an argument is not read for placeholders";
    EXPECT_THROW(Format("%0:s %1:s", {"x"}), std::logic_error);
    EXPECT_THROW(Format("%0:d", {"x"}), std::logic_error);
    EXPECT_THROW(Format("%0:s", {"x", "y"}), std::logic_error);
    EXPECT_THROW(Format("%0s", {"x"}), std::logic_error);
    EXPECT_EQ("'d''água'", base::QuotedStr("d'água"));
    EXPECT_EQ("1, 2", base::Trim(" 1, 2 \r\n"));
}

TEST(SemControles, TerminalNaoObedeceANomes) {
    using base::LinhasSemControles;
    using base::SemControles;
    EXPECT_EQ("Pão – 100 €", SemControles("Pão – 100 €"));
    EXPECT_EQ("␀␛[31m␇␉␊␍␟", SemControles(std::string_view("\0\x1B[31m\a\t\n\r\x1F", 11)));
    EXPECT_EQ("a␡\uFFFD\uFFFD\u00A0b", SemControles("a\x7F\u0080\u009F\u00A0b"));
    EXPECT_EQ("\uFFFDx\uFFFD\uFFFDy\uFFFD", SemControles("\x9Bx\xC0\x80y\xC3")) << "bytes that are no UTF-8";
    EXPECT_EQ("\U0001F600\uFFFD\uFFFD\uFFFD", SemControles("\U0001F600\xED\xA0\x80")) << "a surrogate is none";
    EXPECT_EQ("a\nb\nc\n\nd␛\n", LinhasSemControles("a\rb\r\nc\n\rd\x1B\n"));
    EXPECT_EQ("", LinhasSemControles(""));
}
