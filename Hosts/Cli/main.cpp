#include "Cli/CommandLine.h"
#include "Cli/Console.h"
#include "Cli/System.h"

#include "Common/Logging.h"
#include "Common/SystemProxy.h"

#include <QCoreApplication>

#include <iostream>

int main(int argumentCount, char** arguments)
{
    using namespace Korvex::Cli;

    std::ios::sync_with_stdio(false);
    PrepareStreams();
    std::vector<std::string> const words = GetWords(argumentCount, arguments);
    QCoreApplication const application(argumentCount, arguments);
    Korvex::Hosts::LogErrorsToStandardError(arguments[0]);
    Korvex::Hosts::UseSystemProxy();
    CatchInterrupts();

    Console console{std::cout, std::cerr, IsStandardErrorTerminal(), &IsInterruptRequested, GetStandardOutputColumns()};
    return Run(words, console);
}
