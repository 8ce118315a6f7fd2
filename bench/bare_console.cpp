// What a program of Qt without windows costs at least: the peer of the command line's start.

#include <QCoreApplication>

int main(int argc, char **argv)
{
    const QCoreApplication application(argc, argv);
    return 0;
}
