#pragma once

namespace suite::firebird {
class Transaction;
}

namespace demo {

class TPlano;

// The configurable statements: their totalizers, links, vertical bases and the users with a role on them.
void GravarDemonstracoes(suite::firebird::Transaction& ATransacao, const TPlano& APlano);

} // namespace demo
