#!/usr/bin/perl
# SOAP::Lite as a client of the event management service:
#
#     client.pl <folder of the schema> <address of the bus> <location of the server> <case>
#
# The cases are those of tests/toolkits/Cases.h. With --defaults before the other arguments plain Perl
# data is sent as SOAP::Lite takes it.
use strict;
use warnings;
use utf8;
use Data::Dumper;
use SOAP::Lite;

my $defaults = $ARGV[0] eq '--defaults' && shift;
my ($schema, $authority, $location, $case) = @ARGV;
my $bus = "$authority/schemas/halyardns/3/";
my $ems = "$authority/schemas/eventManagementService/1";
my $text = "a<b> & \"c\" 'd' ]]> é ß 漢字 😀\ttab";
my $bytes = "\x00\x01\xFE\xFFabc";
my $path = '/content/report';
binmode STDOUT, ':utf8';

# Without this a value of one of the schema's simple types is the error "Unrecognized type".
package BusDeserializer;
our @ISA = 'SOAP::Deserializer';

sub typecast {
    my ($self, $value, $name, $attributes, $children, $type) = @_;
    return if !defined $type || $type !~ m(/schemas/halyardns/3/});
    return ref $children && @$children ? undef : $value // '';
}

package main;

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
    return SOAP::Data->name($name => \SOAP::Data->value(@fields))->type($type);
}

# A null one.
sub null {
    my ($name, $type) = @_;
    return SOAP::Data->name($name)->type($type)->attr({'xsi:nil' => 'true'});
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

my @header;
my ($operation, @parameters) = ('run');

sub run {
    my ($path, $values, $options) = @_;
    @parameters = (
        defined $path ? field('objectPath', 'bus:searchPathSingleObject', $path)
            : null('objectPath', 'bus:searchPathSingleObject'),
        $values ? array('parameterValues', 'bus:parameterValue', @$values)
            : null('parameterValues', 'bus:parameterValueArray'),
        $options ? array('options', 'bus:option', @$options) : null('options', 'bus:optionArray'));
}

my %cases = (
    'tree' => sub {
        @header = SOAP::Header->name('bus:halyardHeader' => \SOAP::Data->value(
            object('Warden', 'bus:Warden',
                field('authenticityToken', 'xsd:base64Binary', $bytes),
                object('WardenPassport', 'bus:WardenPassport',
                    field('id', 'xsd:string', 'MTsx'),
                    field('isAnonymous', 'xsd:boolean', 'false')),
                texts('roles', 'Authors', 'R&D')),
            object('tracking', 'bus:tracking', field('hopCount', 'xsd:integer', 2))))
            ->type('bus:halyardHeader');
        run($path, [region(item('item', 'EMEA', 'Europe'),
                object('item', 'bus:boundRangeParmValueItem',
                    item('end', '9', 'nine'), item('start', '1', 'one')))], [
            prompt('false'),
            option('StringArray', 'outputFormat', texts('value', 'PDF', 'HTML')),
            option('Int', 'verticalElements', field('value', 'xsd:int', -5))]);
    },
    'texts' => sub {
        run($text, [], [option('String', 'burstKeyLimit',
            field('value', 'xsd:string', "  two\nlines  "))]);
    },
    'empty-text' => sub {
        run('', [], [option('String', 'burstKeyLimit', field('value', 'xsd:string', ''))]);
    },
    'nulls' => sub { run() },
    'empty' => sub { run($path, [], []) },
    'null-items' => sub {
        run($path, [region(), null('item', 'bus:parameterValue')],
            [prompt(), null('item', 'bus:runOptionBoolean')]);
    },
    'omitted' => sub { run($path, [region()], [prompt()]) },
    # The same object twice would be sent once, and referred to.
    'shared' => sub { run($path, [], [prompt('true'), prompt('true')]) },
    'trigger' => sub {
        ($operation, @parameters) = ('trigger', field('triggerName', 'xsd:string', 'nightly'));
    },
);

# The same as Perl has it: hashes, whose keys have no order, lists, and values whose types are guessed.
my $option = {name => 'prompt', value => 'true'};
my %plain = (
    'tree' => [[{name => 'region', value => [{use => 'EMEA', display => 'Europe'}]}], [$option]],
    'texts' => [[], [{name => 'burstKeyLimit', value => $text}]],
    'empty-text' => [[], [{name => 'burstKeyLimit', value => ''}]],
    'nulls' => [undef, undef],
    'empty' => [[], []],
    'null-items' => [[{name => 'region', value => undef}, undef], []],
    'omitted' => [[{name => 'region'}], []],
    'shared' => [[], [$option, $option]],
);

my $client = SOAP::Lite->uri($ems)->proxy($location, timeout => 20)->on_action(sub { qq("$ems/") });
if ($defaults) {
    if ($case eq 'trigger') {
        ($operation, @parameters) = ('trigger', 'nightly');
    } else {
        my ($values, $options) = @{$plain{$case}};
        @parameters = (SOAP::Data->name(objectPath => $case eq 'nulls' ? undef : $path),
            SOAP::Data->name(parameterValues => $values), SOAP::Data->name(options => $options));
    }
} else {
    $client->serializer->register_ns($bus, 'bus');
    $client->deserializer(BusDeserializer->new);
    $cases{$case}->();
}

my $reply = eval { $client->call($operation => @parameters, @header) };
if (!defined $reply) {
    print "cannot read: $@";
} elsif ($reply->fault) {
    print 'fault: ', $reply->faultcode, ': ', $reply->faultstring, "\n";
} else {
    local ($Data::Dumper::Indent, $Data::Dumper::Sortkeys, $Data::Dumper::Terse) = (1, 1, 1);
    print Dumper($reply->result);
}
