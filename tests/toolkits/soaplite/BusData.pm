# What both ends share: the cases' values, and typed data as SOAP::Lite takes it.
package BusData;
use strict;
use warnings;
use utf8;
use Exporter 'import';
use SOAP::Lite;

our @EXPORT = qw(TEXT BYTES field object null array texts item option prompt region);

use constant TEXT => "a<b> & \"c\" 'd' ]]> é ß 漢字 😀\ttab";
use constant BYTES => "\x00\x01\xFE\xFFabc";

# A value with its name and its type, such as "bus:runOptionEnum" or "xsd:int". What has no value is
# left out; the order of the fields is that of the arguments. SOAP::Lite escapes the texts of types
# that it knows, by their local names, and no others.
sub field {
    my ($name, $type, $value) = @_;
    return () unless defined $value;
    return SOAP::Data->name($name => $value)->type($1) if $type =~ /^xsd:(.*)/;
    return SOAP::Data->name($name => SOAP::Utils::encode_data($value))->type($type);
}

# An object: its fields follow.
sub object {
    my ($name, $type, @fields) = @_;
    # Without content the type would stay off the wire.
    return SOAP::Data->name($name => @fields ? \SOAP::Data->value(@fields) : '')->type($type);
}

# A null one, of whatever type.
sub null {
    my ($name) = @_;
    return SOAP::Data->name($name)->attr({'xsi:nil' => 'true'});
}

sub array {
    my ($name, $type, @items) = @_;
    my $count = @items;
    return SOAP::Data->name($name => $count ? \SOAP::Data->value(@items) : '')
        ->type('soapenc:Array')->attr({'soapenc:arrayType' => "$type\[$count]"});
}

sub texts {
    my ($name, @texts) = @_;
    return array($name, 'xsd:string', map { field('item', 'xsd:string', $_) } @texts);
}

sub item {
    my ($name, $use, $display) = @_;
    return object($name, 'bus:simpleParmValueItem',
        field('inclusive', 'xsd:boolean', 'true'),
        field('display', 'xsd:string', $display),
        field('use', 'xsd:string', $use));
}

sub option {
    my ($kind, $name, @fields) = @_;
    return object('item', "bus:runOption$kind", field('name', 'bus:runOptionEnum', $name), @fields);
}

sub prompt {
    return option('Boolean', 'prompt', field('value', 'xsd:boolean', $_[0]));
}

sub region {
    my @items = @_;
    return object('item', 'bus:parameterValue', field('name', 'xsd:string', 'region'),
        @items ? array('value', 'bus:parmValueItem', @items) : ());
}

# Without this a value of one of the schema's simple types is the error "Unrecognized type".
package BusData::Deserializer;
our @ISA = 'SOAP::Deserializer';

sub typecast {
    my ($self, $value, $name, $attributes, $children, $type) = @_;
    return if !defined $type || $type !~ m(/schemas/halyardns/3/});
    return ref $children && @$children ? undef : $value // '';
}

1;
