// gSOAP as a client and as a server of the event management service:
//
//     gsoap_peer call <folder of the schema> <address of the bus> <location of the server> <case>
//     gsoap_peer answer <folder of the schema> <address of the bus> <case>
//
// Folder and address are in the generated code, and not looked at here.
#include "Peer.h"
#include "eventManagementServiceBinding.nsmap"

#include <exception>
#include <iostream>

int main(int count, char** arguments) {
    const std::vector<std::string> words(arguments + 1, arguments + count);
    try {
        if (words.size() == 5 && words[0] == "call") return callServer(words[3], words[4]);
        if (words.size() == 4 && words[0] == "answer") return answerCalls(words[3]);
        std::cerr << "gsoap_peer: call or answer?\n";
    } catch (const std::exception& error) {
        std::cerr << "gsoap_peer: " << error.what() << "\n";
    }
    return 1;
}
