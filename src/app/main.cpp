#include "AppStart.h"

int main(int argc, char **argv)
{
    AppStart start(argc, argv);
    return start.run();
}
