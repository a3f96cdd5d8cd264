// Does nothing: what it costs to start is what its libraries cost.
int main()
{
    return 0;
}
