#include "demo/Organizacao.h"

#include "demo/Carga.h"

#include <algorithm>
#include <stdexcept>

namespace demo {

namespace {

using base::Inteiro;

constexpr TEmpresa TodasAsEmpresas[] = {
    {10, 1, "Cedro Dourado Indústria de Móveis S.A.", 0, 0, 4, 1000},
    {20, 2, "Cedro Dourado Comércio e Distribuição Ltda.", 10, 4, 3, 400},
    {30, 3, "Cedro Dourado Serviços e Logística Ltda.", 10, 7, 2, 150},
};

constexpr TFilial TodasAsFiliais[] = {
    {101, 1, "Cedro Dourado Indústria de Móveis S.A. - Matriz Curitiba", "Cedro Dourado Matriz"},
    {102, 2, "Cedro Dourado Indústria de Móveis S.A. - São José dos Pinhais", "Fábrica São José"},
    {103, 3, "Cedro Dourado Indústria de Móveis S.A. - Jaraguá do Sul", "Fábrica Jaraguá"},
    {104, 4, "Cedro Dourado Indústria de Móveis S.A. - Goiânia", "Escritório Goiânia"},
    {201, 1, "Cedro Dourado Comércio e Distribuição Ltda. - Matriz Maringá", "Distribuidora Maringá"},
    {202, 2, "Cedro Dourado Comércio e Distribuição Ltda. - Ribeirão Preto", "Distribuidora Ribeirão"},
    {203, 3, "Cedro Dourado Comércio e Distribuição Ltda. - Uberlândia", "Distribuidora Uberlândia"},
    {301, 1, "Cedro Dourado Serviços e Logística Ltda. - Matriz Paranaguá", "Logística Paranaguá"},
    {302, 2, "Cedro Dourado Serviços e Logística Ltda. - Itajaí", "Logística Itajaí"},
};

constexpr TCentroCusto TodosOsCentros[] = {
    {1001, 100, "1", "PRODUÇÃO", true},
    {1002, 101, "1.01", "Marcenaria", false},
    {1003, 102, "1.02", "Estofaria", false},
    {1004, 103, "1.03", "Pintura e acabamento", false},
    {1005, 104, "1.04", "Manutenção industrial", false},
    {1006, 200, "2", "COMERCIAL", true},
    {1007, 201, "2.01", "Vendas internas", false},
    {1008, 202, "2.02", "Representações e exportação", false},
    {1009, 203, "2.03", "Marketing", false},
    {1010, 204, "2.04", "Expedição e logística", false},
    {1011, 300, "3", "ADMINISTRAÇÃO", true},
    {1012, 301, "3.01", "Diretoria", false},
    {1013, 302, "3.02", "Controladoria e finanças", false},
    {1014, 303, "3.03", "Gestão de pessoas", false},
    {1015, 304, "3.04", "Tecnologia da informação", false},
};

struct TUsuario {
    int Id;
    int Codigo;
    std::string_view Nome;
};
constexpr TUsuario Usuarios[] = {
    {601, 1, "Ana Beatriz Conceição"}, {602, 2, "João Guimarães"},         {603, 3, "Márcia Regina Araújo"},
    {604, 4, "Luís Antônio Simões"},   {605, 5, "Sérgio Magalhães"},       {606, 6, "Inês D'Ávila"},
    {607, 7, "Otávio Brandão"},        {608, 8, "Conceição Nóbrega Leão"},
};

constexpr std::string_view Atribuicoes[] = {"Gestor", "Supervisor", "Analista"};

struct TUsuarioAtrib {
    int Id;
    int Usuario;
    int Atribuicao;
};
constexpr TUsuarioAtrib UsuariosAtrib[] = {
    {811, 601, 701}, {812, 602, 701}, {813, 603, 701}, {814, 603, 702}, {815, 604, 702},
    {816, 605, 702}, {817, 606, 702}, {818, 606, 703}, {819, 607, 703}, {820, 608, 703},
};

} // namespace

std::span<const TEmpresa> Empresas() { return TodasAsEmpresas; }
std::span<const TFilial> Filiais() { return TodasAsFiliais; }
std::span<const TCentroCusto> CentrosCusto() { return TodosOsCentros; }

const TEmpresa& Empresa(int ALugar) { return TodasAsEmpresas[ALugar]; }
const TFilial& Filial(int ALugar) { return TodasAsFiliais[ALugar]; }
const TCentroCusto& CentroCusto(int ALugar) { return TodosOsCentros[ALugar]; }

int LugarDoCentro(int ACodigo) {
    const auto LAchado = std::find_if(std::begin(TodosOsCentros), std::end(TodosOsCentros),
                                      [&](const TCentroCusto& ACentro) { return ACentro.Codigo == ACodigo; });
    if (LAchado == std::end(TodosOsCentros))
        throw std::logic_error("no cost centre " + std::to_string(ACodigo));
    return static_cast<int>(LAchado - std::begin(TodosOsCentros));
}

std::vector<int> PesosDasFiliais(const TEmpresa& AEmpresa, int ACodigoCentro) {
    const int LGrupo = ACodigoCentro == 0 ? 3 : ACodigoCentro / 100;
    switch (AEmpresa.Codigo) {
    case 1: // the office in Goiânia produces nothing
        return LGrupo == 1   ? std::vector{450, 350, 200, 0}
               : LGrupo == 2 ? std::vector{400, 250, 200, 150}
                             : std::vector{550, 200, 150, 100};
    case 2:
        return LGrupo == 2 ? std::vector{450, 330, 220} : std::vector{700, 180, 120};
    default:
        return {600, 400};
    }
}

void GravarOrganizacao(suite::firebird::Transaction& ATransacao) {
    TCarga LEmpresas(ATransacao, "SC00_EMPRESA", {"IDEMPRESA", "EMPRESA", "NOME", "IDHOLDING"});
    TCarga LFiliais(ATransacao, "SC00_FILIAL", {"IDFILIAL", "IDEMPRESA", "FILIAL", "NOME", "NOMEFANTASIA"});
    for (const auto& LEmpresa : TodasAsEmpresas) {
        LEmpresas.Linha(
            {Inteiro(LEmpresa.Id), Inteiro(LEmpresa.Codigo), Texto(LEmpresa.Nome), ChaveOuNulo(LEmpresa.Holding)});
        for (int i = 0; i < LEmpresa.QtdeFiliais; ++i) {
            const auto& LFilial = TodasAsFiliais[LEmpresa.PrimeiraFilial + i];
            LFiliais.Linha({Inteiro(LFilial.Id), Inteiro(LEmpresa.Id), Inteiro(LFilial.Codigo), Texto(LFilial.Nome),
                            Texto(LFilial.NomeFantasia)});
        }
    }
    TCarga LCentros(ATransacao, "CO01_CENTROCUSTO",
                    {"IDCENTROCUSTO", "IDEMPRESA", "CODIGO", "DESCRICAO", "CLASSIFCENTRO", "CENTROTITULO"});
    for (const auto& LCentro : TodosOsCentros)
        LCentros.Linha({Inteiro(LCentro.Id), Inteiro(Holding().Id), Inteiro(LCentro.Codigo), Texto(LCentro.Descricao),
                        Texto(LCentro.Classif), Inteiro(LCentro.Titulo ? 1 : 2)});
    TCarga LUsuarios(ATransacao, "US09_USUARIO", {"IDUSUARIO", "CODIGO", "NOME"});
    for (const auto& LUsuario : Usuarios)
        LUsuarios.Linha({Inteiro(LUsuario.Id), Inteiro(LUsuario.Codigo), Texto(LUsuario.Nome)});
    TCarga LAtribuicoes(ATransacao, "US09_ATRIBUICAO", {"IDATRIBUICAO", "CODIGO", "DESCRICAO"});
    int LCodigo = 0;
    for (const auto LDescricao : Atribuicoes) {
        ++LCodigo;
        LAtribuicoes.Linha({Inteiro(700 + LCodigo), Inteiro(LCodigo), Texto(LDescricao)});
    }
    TCarga LVinculos(ATransacao, "US09_USUARIOATRIB", {"IDUSUARIOATRIB", "IDUSUARIO", "IDATRIBUICAO"});
    for (const auto& LVinculo : UsuariosAtrib)
        LVinculos.Linha({Inteiro(LVinculo.Id), Inteiro(LVinculo.Usuario), Inteiro(LVinculo.Atribuicao)});
    for (auto* LCarga : {&LEmpresas, &LFiliais, &LCentros, &LUsuarios, &LAtribuicoes, &LVinculos})
        LCarga->Terminar();
}

} // namespace demo
