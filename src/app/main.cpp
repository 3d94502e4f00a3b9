#include "AppStart.h"

int main(int argc, char **argv)
{
    return runHub(argc, argv);
}
