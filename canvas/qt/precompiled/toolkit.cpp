// Nothing of its own: a library needs a source, and this one consists of headers.
