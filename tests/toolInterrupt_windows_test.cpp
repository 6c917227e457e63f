#ifdef ZEL_TOOL // without the tool there is nothing to test

#include "tests/toolRun.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

namespace {

using testing::ElementsAre;

BOOL WINAPI ignore(DWORD)
{
    return TRUE;
}

// A pipe that nobody reads further than a test does.
class CPipe {
public:
    CPipe()
    {
        SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
        CreatePipe(&mOut, &mIn, &inherited, 1);
        SetHandleInformation(mOut, HANDLE_FLAG_INHERIT, 0);
    }
    ~CPipe()
    {
        CloseHandle(mIn);
        CloseHandle(mOut);
    }
    CPipe(const CPipe&) = delete;
    CPipe& operator=(const CPipe&) = delete;

    HANDLE in() const { return mIn; }
    void readByte()
    {
        char byte = 0;
        DWORD size = 0;
        EXPECT_TRUE(ReadFile(mOut, &byte, 1, &size, nullptr));
    }

private:
    HANDLE mOut = nullptr;
    HANDLE mIn = nullptr;
};

// The tool with a console of its own, which has no window.
class CTool {
public:
    CTool(const std::string& arguments, HANDLE output, HANDLE messages)
    {
        std::string line = '"' + std::string(toolPath()) + "\" " + arguments;
        STARTUPINFOA startup = {};
        startup.cb = sizeof startup;
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdOutput = output;
        startup.hStdError = messages;
        EXPECT_TRUE(CreateProcessA(nullptr, line.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW,
                                   nullptr, nullptr, &startup, &mProcess));
    }
    ~CTool()
    {
        TerminateProcess(mProcess.hProcess, 1);
        CloseHandle(mProcess.hThread);
        CloseHandle(mProcess.hProcess);
    }
    CTool(const CTool&) = delete;
    CTool& operator=(const CTool&) = delete;

    /// Lets the console send the event, and gives the exit code of the tool.
    int stop(DWORD event)
    {
        FreeConsole();
        EXPECT_TRUE(AttachConsole(mProcess.dwProcessId));
        SetConsoleCtrlHandler(ignore, TRUE); // this process is in that console too
        EXPECT_TRUE(GenerateConsoleCtrlEvent(event, 0));
        EXPECT_EQ(WaitForSingleObject(mProcess.hProcess, 30'000), WAIT_OBJECT_0);
        FreeConsole();
        SetConsoleCtrlHandler(ignore, FALSE);
        AttachConsole(ATTACH_PARENT_PROCESS);
        DWORD code = 0;
        GetExitCodeProcess(mProcess.hProcess, &code);
        return static_cast<int>(code);
    }

private:
    PROCESS_INFORMATION mProcess = {};
};

struct CEvent {
    const char* name;
    DWORD event;
    int code;
};

// A document whose load gives a message that is longer than what a pipe holds.
std::string longMessage()
{
    const std::string name(1'000'000, 'a');
    return minimalWith("<" + name + "><![CDATA[ a ]]></" + name + ">");
}

class ToolInterrupt : public testing::TestWithParam<CEvent> {
protected:
    void SetUp() override
    {
        const bool isWine =
            GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version") != nullptr;
        if (isWine && GetParam().event == CTRL_BREAK_EVENT)
            GTEST_SKIP() << "a console of Wine sends no Ctrl-Break";
    }

    CTempFolder mFolder;
    CPipe mPipe;
};

TEST_P(ToolInterrupt, StopsALoadAndLeavesTheTarget)
{
    const std::string in = mFolder.put("in.zel", longMessage());
    const std::string out = mFolder.put("out", "as it was");
    CTool tool("rewrite \"" + in + "\" \"" + out + "\"", nullptr, mPipe.in());
    mPipe.readByte();
    EXPECT_EQ(tool.stop(GetParam().event), GetParam().code);
    EXPECT_EQ(contents(out), "as it was");
    EXPECT_THAT(mFolder.names(), ElementsAre("in.zel", "out"));
}

TEST_P(ToolInterrupt, StopsAWriteToAPipeThatNobodyReads)
{
    const std::string in = mFolder.put("in.zel", longMessage());
    CTool tool("check \"" + in + "\"", mPipe.in(), nullptr);
    mPipe.readByte();
    EXPECT_EQ(tool.stop(GetParam().event), GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(All, ToolInterrupt,
                         testing::Values(CEvent{"CtrlC", CTRL_C_EVENT, 130},
                                         CEvent{"CtrlBreak", CTRL_BREAK_EVENT, 143}),
                         [](const auto& item) { return std::string(item.param.name); });

} // namespace

#endif
