#include "demo/Demonstracoes.h"

#include "demo/Carga.h"
#include "demo/Orcamento.h"
#include "demo/Plano.h"

#include <algorithm>
#include <map>
#include <stdexcept>

namespace demo {

namespace {

using base::Inteiro;

constexpr int PrimeiroTotalizador = 7001;
constexpr std::string_view BaseVertical = "03"; // net revenue

struct TDemonstracao {
    int Id;
    int Codigo;
    std::string_view Titulo;
    std::string_view Descricao;
};
constexpr TDemonstracao Demonstracoes[] = {
    {501, 1, "DEMONSTRAÇÃO DO RESULTADO DO EXERCÍCIO", "Resultado da receita bruta ao lucro líquido"},
    {502, 2, "INDICADORES GERENCIAIS", "Margens e gastos tirados da demonstração do resultado"},
    {503, 3, "DESPESAS POR CENTRO DE CUSTO", "Despesas comerciais e administrativas por centro"},
};

// Links, separated by blanks:
//   4.1.01          all accounts with movement at or below that classification
//   4.2@203         the same, but only what falls in that cost centre
//   =4.7.01         that account itself, also where it is synthetic
//   #1:03           another totalizer, by the code of its statement and its classification
// Subs narrows all account links of the totalizer to the sub-accounts named, separated by ";".
struct TTotalizador {
    int Demonstracao; // code
    std::string_view Classif;
    std::string_view Descricao;
    bool Sintetico;
    std::string_view Vinculos = {};
    std::string_view Subs = {};
};

constexpr TTotalizador Totalizadores[] = {
    {1, "01", "RECEITA OPERACIONAL BRUTA", true},
    {1, "01.01", "Venda de produtos", false, "3.1.01"},
    {1, "01.02", "Prestação de serviços", false, "3.1.02"},
    {1, "02", "DEDUÇÕES DA RECEITA", true},
    {1, "02.01", "Tributos sobre vendas", false, "3.2.01"},
    {1, "02.02", "Devoluções e abatimentos", false, "3.2.02"},
    {1, "03", "RECEITA OPERACIONAL LÍQUIDA", true, "#1:01 #1:02"},
    {1, "04", "CUSTOS", true},
    {1, "04.01", "Materiais", false, "4.1.01"},
    {1, "04.02", "Mão de obra direta", false, "4.1.02"},
    {1, "04.03", "Custos indiretos de fabricação", false, "4.1.03"},
    {1, "04.04", "Custo dos serviços prestados", false, "4.1.04"},
    {1, "05", "LUCRO BRUTO", true, "#1:03 #1:04"},
    {1, "06", "DESPESAS COMERCIAIS", true},
    {1, "06.01", "Pessoal comercial", false, "4.2.01"},
    {1, "06.02", "Promoção de vendas", false, "4.2.02"},
    {1, "06.03", "Propaganda em mídia digital", false, "4.2.03.001", "Mídia digital"},
    {1, "06.04", "Propaganda em outras mídias", false, "4.2.03.001", "Televisão e rádio;Revistas e catálogos"},
    {1, "06.05", "Brindes e patrocínios", false, "4.2.03.002 4.2.03.003"},
    {1, "06.06", "Logística", false, "4.2.04"},
    {1, "07", "DESPESAS ADMINISTRATIVAS", true},
    {1, "07.01", "Pessoal administrativo", false, "4.3.01"},
    {1, "07.02", "Ocupação e despesas gerais", false, "4.3.02 4.3.05"},
    {1, "07.03", "Serviços de terceiros", false, "4.3.03"},
    {1, "07.04", "Tecnologia da informação", false, "4.3.04"},
    {1, "07.05", "Depreciações e amortizações", false, "4.3.06"},
    {1, "08", "RESULTADO FINANCEIRO", false, "3.3 4.4"},
    {1, "09", "OUTRAS RECEITAS E DESPESAS", false, "3.4 4.5 4.6"},
    {1, "10", "RESULTADO ANTES DOS TRIBUTOS", true, "#1:05 #1:06 #1:07 #1:08 #1:09"},
    {1, "11", "TRIBUTOS SOBRE O LUCRO", false, "=4.7.01"},
    {1, "12", "RESULTADO LÍQUIDO DO EXERCÍCIO", true, "#1:10 #1:11"},

    {2, "1", "MARGEM DE CONTRIBUIÇÃO", true, "#2:1.1 #2:1.2 #2:1.3 #2:1.4"},
    {2, "1.1", "Receita bruta", false, "#1:01"},
    {2, "1.2", "Deduções", false, "#1:02.01 #1:02.02"},
    {2, "1.3", "Materiais consumidos", false, "#1:04.01"},
    {2, "1.4", "Comissões e fretes sobre vendas", false, "4.2.02.001 4.2.04.001"},
    {2, "2", "GASTOS COM PESSOAL", true},
    {2, "2.1", "Pessoal da produção", false, "#1:04.02"},
    {2, "2.2", "Pessoal comercial e administrativo", false, "#1:06.01 #1:07.01"},
    {2, "3", "GASTOS COM ENERGIA", false, "4.1.03.001 4.3.02.003"},
    {2, "4", "RESULTADO OPERACIONAL", true, "#1:05 #1:06 #1:07"},

    {3, "1", "COMERCIAL", true},
    {3, "1.1", "Vendas internas", false, "4.2@201 4.3@201"},
    {3, "1.2", "Representações e exportação", false, "4.2@202"},
    {3, "1.3", "Marketing", false, "4.2@203"},
    {3, "1.4", "Expedição e logística", false, "4.2@204 4.3@204"},
    {3, "2", "ADMINISTRAÇÃO", true},
    {3, "2.1", "Diretoria", false, "4.3@301"},
    {3, "2.2", "Controladoria e finanças", false, "4.3@302"},
    {3, "2.3", "Gestão de pessoas", false, "4.3@303"},
    {3, "2.4", "Tecnologia da informação", false, "4.3@304"},
};

struct TPapel {
    int Demonstracao;
    std::string_view Classif;
    int UsuarioAtrib;
    int Empresa; // 0 for any
    int Filial;  // 0 for any
};
constexpr TPapel Papeis[] = {
    {1, "01", 811, 0, 0},       {1, "01", 815, 0, 0},    {1, "01.01", 811, 0, 0},  {1, "01.01", 812, 10, 104},
    {1, "01.01", 814, 0, 0},    {1, "01.02", 812, 0, 0}, {1, "04", 812, 10, 0},    {1, "04", 816, 10, 0},
    {1, "04.01", 812, 0, 0},    {1, "04.02", 816, 0, 0}, {1, "06", 811, 0, 0},     {1, "06.01", 818, 0, 0},
    {1, "06.03", 813, 10, 101}, {1, "07", 813, 0, 0},    {1, "07", 817, 0, 0},     {1, "07.04", 819, 0, 0},
    {2, "1", 813, 0, 0},        {2, "1", 815, 20, 0},    {2, "2", 812, 0, 0},      {3, "1", 811, 0, 0},
    {3, "1.3", 817, 10, 0},     {3, "2", 813, 0, 0},     {3, "2.4", 820, 10, 101},
};

std::vector<std::string_view> Palavras(std::string_view ATexto, char ASeparador) {
    std::vector<std::string_view> LPalavras;
    while (!ATexto.empty()) {
        const auto LFim = std::min(ATexto.find(ASeparador), ATexto.size());
        LPalavras.push_back(ATexto.substr(0, LFim));
        ATexto.remove_prefix(std::min(LFim + 1, ATexto.size()));
    }
    return LPalavras;
}

class TGravacao {
  public:
    TGravacao(suite::firebird::Transaction& ATransacao, const TPlano& APlano)
        : FPlano(APlano), FVinculos(ATransacao, "CO01_DEMACTOTREL",
                                    {"IDDEMACTOT", "IDPLANO", "IDPLANOSUB", "IDCENTROCUSTO", "IDDEMACTOTRELAC"}) {
        int LId = PrimeiroTotalizador;
        for (const auto& LTotalizador : Totalizadores)
            FIds[{LTotalizador.Demonstracao, LTotalizador.Classif}] = LId++;
    }

    int Id(int ADemonstracao, std::string_view AClassif) const {
        const auto LAchado = FIds.find({ADemonstracao, AClassif});
        if (LAchado == FIds.end())
            throw std::logic_error("no totalizer " + std::string(AClassif));
        return LAchado->second;
    }

    void Vincular(const TTotalizador& ATotalizador) {
        const int LDono = Id(ATotalizador.Demonstracao, ATotalizador.Classif);
        for (const auto LVinculo : Palavras(ATotalizador.Vinculos, ' ')) {
            if (LVinculo.front() == '#')
                FVinculos.Linha({Inteiro(LDono), base::Nulo, base::Nulo, base::Nulo,
                                 Inteiro(Id(LVinculo[1] - '0', LVinculo.substr(3)))});
            else if (LVinculo.front() == '=')
                Conta(LDono, FPlano.Lugar(LVinculo.substr(1)), 0, 0);
            else
                Contas(LDono, LVinculo, ATotalizador.Subs);
        }
    }
    void Terminar() { FVinculos.Terminar(); }

  private:
    void Conta(int ADono, int ALugar, int ASub, int ACentro) {
        FVinculos.Linha(
            {Inteiro(ADono), Inteiro(FPlano.Conta(ALugar).Id), ChaveOuNulo(ASub), ChaveOuNulo(ACentro), base::Nulo});
    }
    void Contas(int ADono, std::string_view AVinculo, std::string_view ASubs) {
        const auto LArroba = AVinculo.find('@');
        const int LCodigo =
            LArroba == std::string_view::npos ? 0 : std::stoi(std::string(AVinculo.substr(LArroba + 1)));
        const int LCentro = LCodigo == 0 ? 0 : CentroCusto(LugarDoCentro(LCodigo)).Id;
        for (const int LLugar : FPlano.Analiticas(AVinculo.substr(0, LArroba))) {
            const auto LUsa = CodigosDosCentros(*FPlano.Conta(LLugar).Modelo);
            if (LCodigo != 0 && std::find(LUsa.begin(), LUsa.end(), LCodigo) == LUsa.end())
                continue;
            if (ASubs.empty())
                Conta(ADono, LLugar, 0, LCentro);
            for (const auto LSub : Palavras(ASubs, ';'))
                Conta(ADono, LLugar, FPlano.IdDaSub(LSub), LCentro);
        }
    }

    const TPlano& FPlano;
    TCarga FVinculos;
    std::map<std::pair<int, std::string_view>, int> FIds;
};

} // namespace

void GravarDemonstracoes(suite::firebird::Transaction& ATransacao, const TPlano& APlano) {
    TCarga LDemonstracoes(ATransacao, "CO01_DEMAC", {"IDDEMAC", "CODIGO", "TITULO", "DESCRICAO"});
    for (const auto& LDemonstracao : Demonstracoes)
        LDemonstracoes.Linha({Inteiro(LDemonstracao.Id), Inteiro(LDemonstracao.Codigo), Texto(LDemonstracao.Titulo),
                              Texto(LDemonstracao.Descricao)});
    TGravacao LGravacao(ATransacao, APlano);
    TCarga LTotalizadores(
        ATransacao, "CO01_DEMACTOT",
        {"IDDEMACTOT", "IDDEMAC", "IDDEMACTOTPAI", "CODIGO", "CLASSIF", "DESCRICAO", "GRAU", "TITULO"});
    TCarga LVerticais(ATransacao, "CO01_DEMACTOTVERT", {"IDDEMACTOT", "IDDEMACTOTBASE"});
    std::map<int, int> LOrdem;
    for (const auto& LTotalizador : Totalizadores) {
        const int LId = LGravacao.Id(LTotalizador.Demonstracao, LTotalizador.Classif);
        const auto LPonto = LTotalizador.Classif.rfind('.');
        const bool LNoTopo = LPonto == std::string_view::npos;
        const int LPai = LNoTopo ? 0 : LGravacao.Id(LTotalizador.Demonstracao, LTotalizador.Classif.substr(0, LPonto));
        LTotalizadores.Linha({Inteiro(LId), Inteiro(Demonstracoes[LTotalizador.Demonstracao - 1].Id), ChaveOuNulo(LPai),
                              Inteiro(LTotalizador.Demonstracao * 1000 + 10 * ++LOrdem[LTotalizador.Demonstracao]),
                              Texto(LTotalizador.Classif), Texto(LTotalizador.Descricao), Inteiro(LNoTopo ? 1 : 2),
                              Inteiro(LTotalizador.Sintetico ? 1 : 2)});
        LGravacao.Vincular(LTotalizador);
        // The third statement has no vertical percentage, and neither have gross revenue and its parts.
        if (LTotalizador.Demonstracao != 3 && !LTotalizador.Classif.starts_with("01"))
            LVerticais.Linha({Inteiro(LId), Inteiro(LGravacao.Id(1, BaseVertical))});
    }
    TCarga LPapeis(ATransacao, "CO01_DEMACTOTUSUATRIB", {"IDDEMACTOT", "IDUSUARIOATRIB", "IDEMPRESA", "IDFILIAL"});
    for (const auto& LPapel : Papeis)
        LPapeis.Linha({Inteiro(LGravacao.Id(LPapel.Demonstracao, LPapel.Classif)), Inteiro(LPapel.UsuarioAtrib),
                       ChaveOuNulo(LPapel.Empresa), ChaveOuNulo(LPapel.Filial)});
    for (auto* LCarga : {&LDemonstracoes, &LTotalizadores, &LVerticais, &LPapeis})
        LCarga->Terminar();
    LGravacao.Terminar();
}

} // namespace demo
