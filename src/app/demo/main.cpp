#include "AppStart.h"
#include "VirtualBus.h"

int main(int argc, char **argv)
{
    virtualhid::VirtualBus::instance().plug("wired-500");
    return runHub(argc, argv);
}
