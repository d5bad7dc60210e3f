// Axis 1 as a client of the event management service:
//
//     java Client <folder of the schema> <address of the bus> <location of the server> <case>
//
// The cases are those of tests/toolkits/Cases.h. With -Ddefaults=true Axis is left as it comes.
import example.korva.bus.schemas.eventManagementService._1.*;
import example.korva.bus.schemas.halyardns._3.*;
import java.math.BigInteger;
import java.net.URL;
import javax.xml.namespace.QName;
import org.apache.axis.AxisEngine;
import org.apache.axis.AxisFault;
import org.apache.axis.client.Stub;
import org.apache.axis.message.SOAPHeaderElement;

public class Client {
    static final String TEXT = "a<b> & \"c\" 'd' ]]> \u00e9 \u00df \u6f22\u5b57 \ud83d\ude00\ttab";
    static final byte[] BYTES = {0, 1, (byte) 0xFE, (byte) 0xFF, 'a', 'b', 'c'};
    static final String PATH = "/content/report";

    static String bus;
    static EventManagementService_PortType service;

    static SimpleParmValueItem item(String use, String display) {
        SimpleParmValueItem item = new SimpleParmValueItem();
        item.setInclusive(true);
        item.setUse(use);
        item.setDisplay(display);
        return item;
    }

    static RunOptionBoolean prompt(Boolean value) {
        RunOptionBoolean option = new RunOptionBoolean();
        option.setName(RunOptionEnum.prompt);
        option.setValue(value);
        return option;
    }

    static RunOptionString text(String value) {
        RunOptionString option = new RunOptionString();
        option.setName(RunOptionEnum.burstKeyLimit);
        option.setValue(value);
        return option;
    }

    static ParameterValue region(ParmValueItem... items) {
        ParameterValue value = new ParameterValue();
        value.setName("region");
        value.setValue(items.length == 0 ? null : items);
        return value;
    }

    static AsynchReply run(String path, ParameterValue[] values, Option... options)
            throws Exception {
        return service.run(path, values, options);
    }

    static AsynchReply tree() throws Exception {
        Tracking tracking = new Tracking();
        tracking.setHopCount(BigInteger.valueOf(2));
        WardenPassport passport = new WardenPassport();
        passport.setId("MTsx");
        passport.setIsAnonymous(false);
        Warden warden = new Warden();
        warden.setAuthenticityToken(BYTES);
        warden.setWardenPassport(passport);
        warden.setRoles(new String[] {"Authors", "R&D"});
        HalyardHeader header = new HalyardHeader();
        header.setTracking(tracking);
        header.setWarden(warden);
        SOAPHeaderElement entry = new SOAPHeaderElement(bus, "halyardHeader", header);
        entry.setMustUnderstand(false);
        entry.setActor(null);
        ((Stub) service).setHeader(entry);

        BoundRangeParmValueItem range = new BoundRangeParmValueItem();
        range.setStart(item("1", "one"));
        range.setEnd(item("9", "nine"));
        RunOptionStringArray formats = new RunOptionStringArray();
        formats.setName(RunOptionEnum.outputFormat);
        formats.setValue(new String[] {"PDF", "HTML"});
        RunOptionInt rows = new RunOptionInt();
        rows.setName(RunOptionEnum.verticalElements);
        rows.setValue(-5);
        return run(PATH, new ParameterValue[] {region(item("EMEA", "Europe"), range)},
            prompt(false), formats, rows);
    }

    static Object call(String name) throws Exception {
        ParameterValue[] none = {};
        switch (name) {
            case "tree": return tree();
            case "texts": return run(TEXT, none, text("  two\nlines  "));
            case "empty-text": return run("", none, text(""));
            case "nulls": return run(null, null, (Option[]) null);
            case "empty": return run(PATH, none);
            case "null-items":
                return run(PATH, new ParameterValue[] {region(), null}, prompt(null), null);
            case "omitted": return run(PATH, new ParameterValue[] {region()}, prompt(null));
            case "shared": {
                RunOptionBoolean option = prompt(true);
                return run(PATH, none, option, option);
            }
            case "trigger": return service.trigger("nightly");
            default: throw new IllegalArgumentException(name);
        }
    }

    static String tell(AsynchReply reply) {
        if (reply == null) return "result: null";
        StringBuilder text = new StringBuilder("result: asynchReply");
        if (reply.getStatus() != null) text.append(", ").append(reply.getStatus().getValue());
        if (reply.getDetails() != null)
            for (AsynchDetail detail : reply.getDetails())
                text.append("\n  ").append(
                    detail == null ? "null" : detail.getClass().getSimpleName());
        return text.toString();
    }

    public static void main(String[] arguments) throws Exception {
        bus = arguments[1] + "/schemas/halyardns/3/";
        EventManagementService_ServiceLocator locator = new EventManagementService_ServiceLocator();
        if (!Boolean.getBoolean("defaults")) {
            locator.getEngine().setOption(AxisEngine.PROP_DOMULTIREFS, false);
            locator.getEngine().setOption(AxisEngine.PROP_SEND_XSI, false);
        }
        service = locator.geteventManagementService(new URL(arguments[2]));
        ((Stub) service).setTimeout(20000);
        try {
            Object result = call(arguments[3]);
            System.out.println(result instanceof AsynchReply || result == null
                ? tell((AsynchReply) result) : "result: " + result);
        } catch (AxisFault fault) {
            System.out.println("fault: " + fault.getFaultCode().getLocalPart() + ": "
                + fault.getFaultString());
            for (org.w3c.dom.Element detail : fault.getFaultDetails())
                if (!"hostname".equals(detail.getLocalName())
                    && !"stackTrace".equals(detail.getLocalName()))
                    System.out.println(org.apache.axis.utils.XMLUtils.ElementToString(detail));
        }
    }
}
