/// \file
/// The one fixture that brings up a virtual bus. Works in a private temporary folder, in which "COM1" is a link to the
/// bus's port: the name that a program under test opens.
///
/// A test that wants other drives, or starts the bus later, derives from it and overrides busOptions():
///
///     class TwoDrives : public VirtualBusFixture {
///         sim::BusOptions busOptions() const override { return {{{"keta", 3}, {"torva", 7}}}; }
///     };
///
/// Header only, so that every test executable can use it. The working folder belongs to the process: one at a time.
#ifndef VELBRIN_TESTS_VIRTUALBUSFIXTURE_H
#define VELBRIN_TESTS_VIRTUALBUSFIXTURE_H

#include "virtualbus.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <string>

/// Payload in hexadecimal, as one types it from the protocol: "800f00000000" for register 15 := 0.
inline std::string hex(const sim::Bytes &bytes)
{
    std::string text;
    for (std::uint8_t byte : bytes) {
        text += "0123456789abcdef"[byte >> 4];
        text += "0123456789abcdef"[byte & 15];
    }
    return text;
}

inline std::vector<std::string> payloadsOf(const sim::ReceivedRequests &requests)
{
    std::vector<std::string> payloads;
    for (const sim::ReceivedRequest &request : requests)
        payloads.push_back(hex(request.packet.payload));
    return payloads;
}

/// How many there are of one kind of packet.
inline int packetsIn(const sim::ReceivedRequests &requests, int id)
{
    return static_cast<int>(std::count_if(requests.begin(), requests.end(), [id](const sim::ReceivedRequest &request) {
        return request.packet.id == id;
    }));
}

/// A private folder that is the working folder while this lives; removed with all its contents.
class PrivateFolder
{
public:
    PrivateFolder() : m_before(std::filesystem::current_path())
    {
        std::string name = (std::filesystem::temp_directory_path() / "velbrin-bus-XXXXXX").string();
        if (const char *made = mkdtemp(name.data()))
            std::filesystem::current_path(m_path = made);
    }
    ~PrivateFolder()
    {
        std::error_code ignored;
        std::filesystem::current_path(m_before, ignored);
        std::filesystem::remove_all(m_path, ignored);
    }
    const std::filesystem::path &path() const { return m_path; }

private:
    std::filesystem::path m_before;
    std::filesystem::path m_path;
};

class VirtualBusFixture : public testing::Test
{
public:
    /// Where the default drive answers.
    static constexpr int DriveAddress = 5;

    /// What a program under test opens.
    static const char *port() { return "COM1"; }

protected:
    /// One Keta at address 5 unless overridden. Link, recording and restart time are the fixture's own.
    virtual sim::BusOptions busOptions() const { return {}; }

    void SetUp() override { startBus(busOptions()); }
    void TearDown() override { m_bus.reset(); }

    /// Brings the bus up anew, with other drives or on the same state file.
    void startBus(sim::BusOptions options)
    {
        options.goesFirst = true; // a real drive has a processor of its own
        m_bus.reset();
        options.linkPath = port();
        options.recordRequests = true;
        if (options.restartTime == sim::BusOptions().restartTime)
            options.restartTime = std::chrono::milliseconds(20);
        m_bus = std::make_unique<sim::VirtualBus>(options);
        const std::string error = m_bus->start();
        ASSERT_EQ(error, "");
    }

    sim::VirtualBus &bus() { return *m_bus; }

    /// Requests that arrived for one drive, in order.
    sim::ReceivedRequests receivedAt(int address) const
    {
        sim::ReceivedRequests requests;
        for (const sim::ReceivedRequest &request : m_bus->received()) {
            if (request.packet.address == address)
                requests.push_back(request);
        }
        return requests;
    }

    /// Waits until so many requests have arrived since the bus came up or clearReceived().
    bool waitForRequests(std::size_t count, std::chrono::milliseconds limit = std::chrono::seconds(20)) const
    {
        return m_bus->waitForReceived([count](const sim::ReceivedRequests &all) { return all.size() >= count; }, limit);
    }
    /// Waits until so many requests of one kind of packet have arrived.
    bool waitForPackets(int id, int count = 1) const
    {
        return m_bus->waitForReceived([=](const sim::ReceivedRequests &all) { return packetsIn(all, id) >= count; });
    }
    bool waitForPayload(const std::string &payload) const
    {
        return m_bus->waitForReceived([&](const sim::ReceivedRequests &all) {
            const std::vector<std::string> payloads = payloadsOf(all);
            return std::find(payloads.begin(), payloads.end(), payload) != payloads.end();
        });
    }

    PrivateFolder m_folder; ///< before the bus, whose link lies in it

private:
    std::unique_ptr<sim::VirtualBus> m_bus;
};

#endif
