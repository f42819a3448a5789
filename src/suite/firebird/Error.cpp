#include "suite/firebird/Error.h"

#include "suite/firebird/Api.h"
#include "suite/firebird/Charset.h"

#include <ibase.h>

#include <algorithm>

namespace suite::firebird {

namespace {

using base::TTipoFalhaBanco;

// What the status vector holds, one entry a code with the texts that came with it.
struct Entry {
    long code;
    std::vector<std::string> texts;
};

std::vector<Entry> read(const std::intptr_t* status) {
    std::vector<Entry> entries;
    while (*status != isc_arg_end) {
        const auto kind = *status++;
        if (kind == isc_arg_cstring) {
            const auto length = static_cast<std::size_t>(*status++);
            entries.back().texts.push_back(toUtf8({reinterpret_cast<const char*>(*status++), length}));
        } else if (kind == isc_arg_gds) {
            if (*status != 0)
                entries.push_back({static_cast<long>(*status), {}});
            ++status;
        } else {
            if (kind == isc_arg_string && !entries.empty())
                entries.back().texts.push_back(toUtf8(reinterpret_cast<const char*>(*status)));
            ++status;
        }
    }
    return entries;
}

std::string engineText(const std::intptr_t* status) {
    std::string text;
    char line[1024];
    const ISC_STATUS* rest = reinterpret_cast<const ISC_STATUS*>(status);
    while (fb_interpret(line, sizeof line, &rest) != 0)
        text += (text.empty() ? "" : "; ") + toUtf8(line);
    return text;
}

struct Sentence {
    long code;
    TTipoFalhaBanco kind;
    const char* text; // "%s" stands for the first text that came with the code
};

constexpr const char* LostSentence =
    "A conexão com o banco de dados foi perdida. Conecte-se novamente; o que já estava confirmado permanece gravado.";
constexpr const char* UnreachableSentence =
    "Não foi possível chegar ao servidor do banco de dados. Verifique o endereço, a porta e se o servidor está no ar.";
constexpr const char* LockedSentence =
    "Outro usuário está gravando os mesmos dados. Aguarde um instante e tente novamente.";
constexpr const char* ProtectedFileSentence =
    "O arquivo %s não está liberado para gravação, de que o Firebird precisa também para consultar. Peça permissão de "
    "gravação nele.";
constexpr const char* LockDirectorySentence =
    "Não há permissão para usar a pasta de travas \".orcreal-lock\" ao lado do banco de dados. Peça a quem a criou que "
    "libere o acesso.";

// The first row whose code the engine reported decides, so the telling codes stand before the general ones.
constexpr Sentence Sentences[] = {
    {isc_cancelled, TTipoFalhaBanco::Cancelado, "A operação foi cancelada."},
    {isc_io_open_err, TTipoFalhaBanco::Conexao,
     "Não foi possível abrir o banco de dados: o arquivo não existe ou não há permissão para lê-lo e gravá-lo. Confira "
     "o caminho e as permissões."},
    {isc_io_write_err, TTipoFalhaBanco::Comando,
     "Não foi possível gravar no disco. Verifique se há espaço livre e tente novamente; nada foi gravado."},
    {isc_already_opened, TTipoFalhaBanco::Conexao,
     "O arquivo do banco de dados está aberto por outro programa. Feche-o e tente novamente; para vários usuários ao "
     "mesmo tempo, use um servidor Firebird."},
    {isc_bad_db_format, TTipoFalhaBanco::Conexao,
     "O arquivo indicado não é um banco de dados Firebird. Confira o caminho."},
    {isc_wrong_ods, TTipoFalhaBanco::Conexao,
     "O banco de dados foi criado por outra versão do Firebird. Converta-o por cópia de segurança e restauração."},
    {isc_login, TTipoFalhaBanco::Conexao,
     "Usuário ou senha do banco de dados não conferem. Verifique o usuário e a senha informados."},
    {isc_lock_dir_access, TTipoFalhaBanco::Conexao, LockDirectorySentence},
    {isc_no_priv, TTipoFalhaBanco::Comando,
     "O usuário do banco de dados não tem permissão para esta operação. Peça acesso ao administrador do banco."},
    {isc_lost_db_connection, TTipoFalhaBanco::Conexao, LostSentence},
    {isc_net_read_err, TTipoFalhaBanco::Conexao, LostSentence},
    {isc_net_write_err, TTipoFalhaBanco::Conexao, LostSentence},
    {isc_att_shutdown, TTipoFalhaBanco::Conexao,
     "A conexão com o banco de dados foi encerrada pelo servidor. Conecte-se novamente."},
    {isc_shutdown, TTipoFalhaBanco::Conexao,
     "O banco de dados está fechado para manutenção. Tente novamente mais tarde."},
    {isc_network_error, TTipoFalhaBanco::Conexao, UnreachableSentence},
    {isc_connect_reject, TTipoFalhaBanco::Conexao, UnreachableSentence}, // no Firebird, or cut in the handshake
    {isc_read_only_database, TTipoFalhaBanco::Comando,
     "O banco de dados está em modo somente de leitura; nada foi gravado. Peça ao administrador que o ponha em modo de "
     "leitura e gravação, ou use os totais como estão."},
    {isc_dsql_relation_err, TTipoFalhaBanco::Comando,
     "A tabela %s não existe neste banco de dados. Verifique se o banco é o da suíte e se está atualizado."},
    {isc_dsql_field_err, TTipoFalhaBanco::Comando,
     "A coluna %s não existe neste banco de dados. Verifique se o banco é o da suíte e se está atualizado."},
    {isc_lock_timeout, TTipoFalhaBanco::Bloqueio, LockedSentence},
    {isc_update_conflict, TTipoFalhaBanco::Bloqueio, LockedSentence},
    {isc_deadlock, TTipoFalhaBanco::Bloqueio, LockedSentence},
    {isc_unique_key_violation, TTipoFalhaBanco::Comando,
     "Já existe um registro com a mesma chave; nada foi gravado (%s)."},
    {isc_foreign_key, TTipoFalhaBanco::Comando,
     "O registro depende de outro que não existe, ou é usado por outro; nada foi gravado (%s)."},
    {isc_check_constraint, TTipoFalhaBanco::Comando,
     "Os valores não atendem a uma regra deste banco de dados (%s); nada foi gravado."},
    {isc_not_valid, TTipoFalhaBanco::Comando, "Falta um valor obrigatório (%s); nada foi gravado."},
    {isc_transliteration_failed, TTipoFalhaBanco::Comando,
     "Há um caractere que o banco de dados não aceita. Troque-o e tente novamente."},
    {isc_io_error, TTipoFalhaBanco::Conexao,
     "Não foi possível ler ou gravar o arquivo do banco de dados. Verifique o caminho, as permissões e o espaço em "
     "disco."},
};

const Entry* find(const std::vector<Entry>& entries, long code) {
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const Entry& e) { return e.code == code; });
    return found == entries.end() ? nullptr : &*found;
}

// "no permission for read-write access to database FILE", of the machine's rights and not of the database's.
bool ofFile(const Entry& entry) {
    return entry.texts.size() == 3 && entry.texts[0] == "read-write" && entry.texts[1] == "database";
}

// The engine names an absent table or column in the text that goes with the next code.
std::string subject(const std::vector<Entry>& entries, const Entry& entry) {
    for (auto i = static_cast<std::size_t>(&entry - entries.data()); i < entries.size(); ++i)
        if (!entries[i].texts.empty())
            return entries[i].texts.front();
    return "?";
}

std::string fill(std::string text, const std::string& argument) {
    if (const auto position = text.find("%s"); position != std::string::npos)
        text.replace(position, 2, argument);
    return text;
}

} // namespace

base::TFalhaBanco toFailure(const std::intptr_t* status, const std::string& statement) {
    const auto entries = read(status);
    std::vector<long> codes;
    for (const auto& entry : entries)
        codes.push_back(entry.code);
    char state[6] = "";
    fb_sqlstate(state, reinterpret_cast<const ISC_STATUS*>(status));
    const std::string detail = engineText(status);
    if (detail.find(".orcreal-lock/") != std::string::npos)
        return {TTipoFalhaBanco::Conexao, LockDirectorySentence, state, codes, statement, detail};
    if (const Entry* entry = find(entries, isc_no_priv); entry && ofFile(*entry))
        return {TTipoFalhaBanco::Conexao,
                fill(ProtectedFileSentence, entry->texts.back()),
                state,
                codes,
                statement,
                detail};
    if (statement == OpeningName && (find(entries, isc_net_read_err) || find(entries, isc_net_write_err)))
        return {TTipoFalhaBanco::Conexao, UnreachableSentence, state, codes, statement, detail};
    for (const auto& sentence : Sentences)
        if (const Entry* entry = find(entries, sentence.code))
            return {sentence.kind, fill(sentence.text, subject(entries, *entry)), state, codes, statement, detail};
    return {
        TTipoFalhaBanco::Comando, "O banco de dados recusou a operação: " + detail, state, codes, statement, detail};
}

} // namespace suite::firebird
