#include "demo/Demo.h"

#include "base/Falhas.h"
#include "demo/ArquivoParcial.h"
#include "demo/Demonstracoes.h"
#include "demo/Diario.h"
#include "demo/Esquema.h"
#include "demo/Projecoes.h"
#include "suite/firebird/Attachment.h"
#include "suite/firebird/Script.h"
#include "suite/firebird/Target.h"
#include "suite/firebird/Transaction.h"

#include <algorithm>

namespace demo {

namespace {

using suite::firebird::Attachment;
using suite::firebird::Transaction;
using suite::firebird::TransactionMode;

void Carregar(Attachment& ABanco, int AEscala, TAndamento& AAndamento) {
    const TPlano LPlano(AEscala);
    TOrcamento LOrcamento(LPlano, Empresas());
    TProjecoes LProjecoes(LOrcamento);
    AAndamento.SetTotal(MesesComDiario * LOrcamento.Grupos().size() + LProjecoes.Passos());
    AAndamento.SetTexto("Gravando empresas, contas e demonstrações");
    {
        Transaction LTransacao(ABanco, TransactionMode::ReadWrite);
        GravarOrganizacao(LTransacao);
        LPlano.Gravar(LTransacao);
        GravarDemonstracoes(LTransacao, LPlano);
        LTransacao.commit();
    }
    {
        Transaction LTransacao(ABanco, TransactionMode::ReadWrite);
        TDiario LDiario(LTransacao, LOrcamento);
        for (int LMes = 0; LMes < MesesProjetados; ++LMes) {
            LOrcamento.PrepararMes(LMes);
            if (LMes >= MesesComDiario)
                continue;
            AAndamento.SetTexto("Gravando o diário de " + Competencia(LMes));
            LDiario.GravarMes(LMes, AAndamento);
            if (LMes == MesesPorAno - 1)
                LDiario.GravarEncerramento();
        }
        LDiario.Terminar();
        LTransacao.commit();
    }
    Transaction LTransacao(ABanco, TransactionMode::ReadWrite);
    LProjecoes.Gravar(LTransacao, AAndamento);
    LTransacao.commit();
}

// One statement at a time, so that a large database can be stopped between two indexes.
void CriarChaves(Attachment& ABanco, TAndamento& AAndamento) {
    constexpr std::string_view LFimDeInstrucao = ";\n";
    auto LResto = EsquemaDasChaves();
    while (!LResto.empty()) {
        AAndamento.SetTexto("Criando chaves e índices");
        const auto LFim = LResto.find(LFimDeInstrucao);
        const auto LTamanho = LFim == std::string_view::npos ? LResto.size() : LFim + LFimDeInstrucao.size();
        suite::firebird::runScript(ABanco, LResto.substr(0, LTamanho));
        LResto.remove_prefix(LTamanho);
    }
}

} // namespace

void Criar(const Opcoes& AOpcoes) {
    if (AOpcoes.Escala < 1)
        throw base::TFalha("A escala do banco de demonstração deve ser um número inteiro a partir de 1.");
    TArquivoParcial LArquivo(AOpcoes.Destino);
    TAndamento LAndamento(AOpcoes.Progresso);
    {
        auto LBanco = Attachment::create(suite::firebird::Target(LArquivo.Caminho().string()));
        suite::firebird::runScript(LBanco, EsquemaDasTabelas());
        Carregar(LBanco, AOpcoes.Escala, LAndamento);
        CriarChaves(LBanco, LAndamento);
        LBanco.detach();
    }
    LArquivo.Entregar();
}

} // namespace demo
