/// \file
/// Finding the drives on a bus.
#ifndef BUSSEARCH_H
#define BUSSEARCH_H

#include "nodetype.h"
#include "operation.h"

#include <QMap>

constexpr int scanTimeoutMs = 100; ///< read time-out of a search: what a silent address costs

class BusSearch : private Operation
{
public:
    explicit BusSearch(OperationContext &context) : Operation(context) {}

    struct Result
    {
        QList<NodeType> nodes; ///< sorted by address, each once
        bool isNoisy = false;  ///< the line never is quiet: the search ended early
        bool isGone = false;   ///< the adapter was pulled out
    };
    /// On an open line that does not ask again.
    Result searchDrives();

private:
    enum class Heard { Nothing, Noise, Reply };
    Heard askWho(int address, NodeType &node);
    void searchAt(int address, QMap<int, NodeType> &found);
    bool isOver() const;

    int m_noisyExchanges = 0; ///< in a row
};

#endif
