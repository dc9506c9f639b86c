/// \file
/// Finding the drives on a bus.
#ifndef VELBRIN_SESSION_BUSSEARCH_H
#define VELBRIN_SESSION_BUSSEARCH_H

#include "nodetype.h"
#include "operation.h"

#include <QMap>

constexpr int scanTimeoutMs = 100; ///< read time-out of a search: what a silent address costs

class BusSearch : private Operation
{
public:
    /// `serveDisable` disables a drive where that was asked for meanwhile; false when the line could not be opened
    /// again.
    BusSearch(OperationContext &context, std::function<bool()> serveDisable)
        : Operation(context), m_serveDisable(std::move(serveDisable))
    {
    }

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

    std::function<bool()> m_serveDisable;
    int m_noisyExchanges = 0; ///< in a row
};

#endif
