#include "core/generateId.h"

#include <gtest/gtest.h>

#include <set>
#include <sys/wait.h>
#include <unistd.h>

using namespace OvZel;

TEST(GenerateId, DiffersBetweenAProcessAndItsFork)
{
    constexpr int kNbIds = 100; // more than are drawn at once
    generateId();
    int pipeEnds[2];
    ASSERT_EQ(pipe(pipeEnds), 0);
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0) {
        bool written = true;
        for (int i = 0; i < kNbIds; ++i) {
            const CZelUUID id = generateId();
            written = written && write(pipeEnds[1], &id, sizeof id) == sizeof id;
        }
        _exit(written ? 0 : 1);
    }
    close(pipeEnds[1]);
    std::set<CZelUUID> ids;
    CZelUUID id;
    while (read(pipeEnds[0], &id, sizeof id) == sizeof id)
        ids.insert(id);
    close(pipeEnds[0]);
    int status = -1;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    for (int i = 0; i < kNbIds; ++i)
        ids.insert(generateId());
    EXPECT_EQ(ids.size(), 2u * kNbIds);
}
