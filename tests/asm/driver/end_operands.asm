; .end takes no operands, and nothing behind it is read.
        .end junk ;! W0000 No operands expected. Operands ignored
5 this would be an error
