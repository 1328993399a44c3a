// A library needs a source of its own; the resources are what it is made for.
