// A service that runs a report, over HTTP on the loopback interface. It prints its address and
// works until it is told to stop (SIGTERM, or Ctrl-C). The argument is a port; without one any will
// do.
#include "examples/live_call/Endpoint.h"
#include "examples/live_call/HttpServer.h"
#include "examples/live_call/ReportOperations.h"

#include <korva/KORVAReportServicePortType.h>

#include <xercesc/util/PlatformUtils.hpp>

#include <csignal>
#include <cstdlib>
#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    // Before there are threads: none of them is to get what the main thread waits for.
    sigset_t stop;
    sigemptyset(&stop);
    sigaddset(&stop, SIGINT);
    sigaddset(&stop, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &stop, nullptr);

    xercesc::XMLPlatformUtils::Initialize();
    try {
        const live_call::Endpoint endpoint({&KORVAReportServicePortType::getInstance()},
                                           live_call::reportOperations());
        const live_call::HttpServer server(endpoint, argc > 1 ? std::atoi(argv[1]) : 0);
        std::cout << "http://127.0.0.1:" << server.port() << '/' << std::endl;
        int signal = 0;
        sigwait(&stop, &signal);
    } catch (const std::exception& error) {
        std::cerr << error.what() << '\n';
        return EXIT_FAILURE;
    }
    xercesc::XMLPlatformUtils::Terminate();
    return EXIT_SUCCESS;
}
