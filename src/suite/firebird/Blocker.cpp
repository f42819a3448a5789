#include "suite/firebird/Blocker.h"

#include "suite/firebird/Statement.h"
#include "suite/firebird/Transaction.h"

#include <charconv>

namespace suite::firebird {

namespace {

constexpr const char* HolderQuery = R"(
    SELECT COALESCE(TRIM(A.MON$REMOTE_OS_USER), TRIM(A.MON$USER)) ||
           COALESCE(', no computador ' || TRIM(COALESCE(A.MON$REMOTE_HOST, A.MON$REMOTE_ADDRESS)), '')
      FROM MON$TRANSACTIONS T
      JOIN MON$ATTACHMENTS A
        ON A.MON$ATTACHMENT_ID = T.MON$ATTACHMENT_ID
     WHERE T.MON$TRANSACTION_ID = ?)";

// The engine puts the number into its text and nowhere else.
std::int64_t blockingTransaction(const std::string& detail) {
    constexpr std::string_view Mark = "concurrent transaction number is ";
    const auto position = detail.find(Mark);
    std::int64_t number = 0;
    if (position != std::string::npos)
        std::from_chars(detail.data() + position + Mark.size(), detail.data() + detail.size(), number);
    return number;
}

} // namespace

base::TFalhaBanco withBlocker(Attachment& attachment, const base::TFalhaBanco& failure) {
    std::string holder;
    try {
        const base::TValor parameters[] = {base::Inteiro(blockingTransaction(failure.Detalhe()))};
        Transaction transaction(attachment, TransactionMode::ReadOnly);
        holder = TextoDe(queryValue(transaction, HolderQuery, "quem grava os mesmos dados", parameters));
    } catch (const base::TFalha&) { // NOLINT: the failure to tell is the one at hand
    }
    if (holder.empty())
        return failure;
    return {failure.Tipo(),
            "Outro usuário (" + holder +
                ") está gravando os mesmos dados. Aguarde um instante e "
                "tente novamente.",
            failure.Estado(),
            failure.Codigos(),
            failure.Instrucao(),
            failure.Detalhe()};
}

} // namespace suite::firebird
